#include <cmath>

#include <fmt/format.h>
#include <glib.h>

#include "base/Utf8.h"
#include "platform/x11/settings/PropertyList.h"

namespace quorvel::x11 {

namespace {

constexpr std::string_view head = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
)";
constexpr std::size_t base64LineLength = 76;

std::string escaped(std::string_view text)
{
    const std::string valid = validUtf8(text);
    std::string result;
    result.reserve(valid.size());
    for (const char character : valid) {
        switch (character) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '\r':
            result += "&#13;"; // a bare one would be read as a line end
            break;
        default:
            const bool isForbidden =
                static_cast<unsigned char>(character) < 0x20 && character != '\t' && character != '\n';
            result += isForbidden ? std::string_view("\uFFFD") : std::string_view(&character, 1);
        }
    }
    return result;
}

std::string realText(double number)
{
    if (std::isinf(number)) {
        return number > 0 ? "+infinity" : "-infinity";
    }
    return std::isnan(number) ? "nan" : fmt::format("{}", number);
}

class XmlPlistWriter {
public:
    std::string document(const PlistDictionary& dictionary)
    {
        text = head;
        write(dictionary);
        text += "</plist>\n";
        return std::move(text);
    }

private:
    void write(const PlistNode& node)
    {
        std::visit([this](const auto& value) { write(value); }, node.value);
    }

    void write(bool value) { line(value ? "<true/>" : "<false/>"); }
    void write(std::int64_t value) { line(fmt::format("<integer>{}</integer>", value)); }
    void write(double value) { line(fmt::format("<real>{}</real>", realText(value))); }
    void write(const std::string& value) { line(fmt::format("<string>{}</string>", escaped(value))); }
    void write(const PlistForeign& value) { line(fmt::format("<{0}>{1}</{0}>", value.element, value.text)); }

    void write(const PropertyData& data)
    {
        gchar* const encoded = g_base64_encode(reinterpret_cast<const guchar*>(data.data()), data.size());
        const std::string base64 = encoded;
        g_free(encoded);
        line("<data>");
        for (std::size_t start = 0; start < base64.size(); start += base64LineLength) {
            line(std::string_view(base64).substr(start, base64LineLength));
        }
        line("</data>");
    }

    void write(const PlistArray& array)
    {
        if (array.empty()) {
            line("<array/>");
            return;
        }
        line("<array>");
        ++depth;
        for (const PlistNode& node : array) {
            write(node);
        }
        --depth;
        line("</array>");
    }

    void write(const PlistDictionary& dictionary)
    {
        if (dictionary.empty()) {
            line("<dict/>");
            return;
        }
        line("<dict>");
        ++depth;
        for (const auto& [key, node] : dictionary) {
            line(fmt::format("<key>{}</key>", escaped(key)));
            write(node);
        }
        --depth;
        line("</dict>");
    }

    void line(std::string_view content)
    {
        text.append(depth, '\t');
        text += content;
        text += '\n';
    }

    std::string text;
    std::size_t depth = 0;
};

} // namespace

std::string propertyListXml(const PlistDictionary& dictionary)
{
    return XmlPlistWriter().document(dictionary);
}

} // namespace quorvel::x11
