#include "platform/x11/qt/QtStyle.h"

#include <QApplication>
#include <QFont>

#include <pango/pango.h>

#include "platform/x11/painting/CairoHandles.h"
#include "platform/x11/qt/Palettes.h"
#include "platform/x11/qt/PaneStyle.h"

namespace quorvel::x11 {

namespace {

// The font of that name in the way of GTK, as in "Cantarell Bold 11", over the one given.
QFont namedFont(QFont font, const std::string& name)
{
    const PangoHandle<PangoFontDescription> description(pango_font_description_from_string(name.c_str()));
    if (const char* const family = pango_font_description_get_family(description.get())) {
        font.setFamily(QString::fromUtf8(family));
    }
    const double size = static_cast<double>(pango_font_description_get_size(description.get())) / PANGO_SCALE;
    if (size > 0.0 && pango_font_description_get_size_is_absolute(description.get()) != FALSE) {
        font.setPixelSize(qRound(size));
    } else if (size > 0.0) {
        font.setPointSizeF(size);
    }
    font.setWeight(static_cast<QFont::Weight>(pango_font_description_get_weight(description.get())));
    font.setItalic(pango_font_description_get_style(description.get()) != PANGO_STYLE_NORMAL);
    return font;
}

} // namespace

QtStyle::QtStyle(const ToolkitHost& host)
{
    if (!host.style || !host.observeStyle) {
        return;
    }
    QApplication::setStyle(new PaneStyle()); // which the application then owns
    apply(host.style());
    changes = host.observeStyle([this, &host] {
        if (const auto style = host.style(); style != applied) {
            apply(style);
        }
    });
}

void QtStyle::apply(const DesktopStyle& style)
{
    applied = style;
    QApplication::setPalette(schemePalette(style.scheme));
    if (!style.font.empty()) {
        QApplication::setFont(namedFont(QApplication::font(), style.font));
    }
}

} // namespace quorvel::x11
