#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace quorvel::x11 {

inline QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline std::string utf8(const QString& text)
{
    return text.toStdString();
}

// Menus and buttons take "&" for the mark of a mnemonic.
inline QString labelText(std::string_view title)
{
    return text(title).replace('&', "&&");
}

// For tooltips and labels that guess what they are given: the text as markup that shows every character of it.
inline QString asMarkup(std::string_view plain)
{
    return "<span>" + text(plain).toHtmlEscaped().replace('\n', "<br>") + "</span>";
}

} // namespace quorvel::x11
