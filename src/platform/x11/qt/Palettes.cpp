#include "platform/x11/qt/Palettes.h"

namespace quorvel::x11 {

namespace {

struct Colors {
    QColor window;
    QColor base;
    QColor alternateBase;
    QColor button;
    QColor text;
    QColor faintText;
    QColor disabledText;
    QColor highlight;
    QColor link;
    QColor toolTip;
};

Colors colors(ColorScheme scheme)
{
    if (scheme == ColorScheme::dark) {
        return {.window = QColor(0x24, 0x26, 0x2A),
                .base = QColor(0x1B, 0x1D, 0x20),
                .alternateBase = QColor(0x20, 0x22, 0x26),
                .button = QColor(0x3A, 0x3D, 0x43),
                .text = QColor(0xE8, 0xEA, 0xED),
                .faintText = QColor(0xA2, 0xA8, 0xB0),
                .disabledText = QColor(0x80, 0x86, 0x8E),
                .highlight = QColor(0x3A, 0x8E, 0xE6),
                .link = QColor(0x6C, 0xB2, 0xF7),
                .toolTip = QColor(0x3A, 0x3D, 0x43)};
    }
    return {.window = QColor(0xF2, 0xF3, 0xF5),
            .base = QColor(0xFF, 0xFF, 0xFF),
            .alternateBase = QColor(0xF7, 0xF8, 0xF9),
            .button = QColor(0xFB, 0xFB, 0xFC),
            .text = QColor(0x1E, 0x20, 0x24),
            .faintText = QColor(0x5F, 0x65, 0x6D),
            .disabledText = QColor(0xA0, 0xA5, 0xAB),
            .highlight = QColor(0x1F, 0x74, 0xD1),
            .link = QColor(0x1F, 0x74, 0xD1),
            .toolTip = QColor(0xFF, 0xFF, 0xFF)};
}

} // namespace

QPalette schemePalette(ColorScheme scheme)
{
    const auto chosen = colors(scheme);
    QPalette palette(chosen.button, chosen.window); // with the shades between the two
    palette.setColor(QPalette::Base, chosen.base);
    palette.setColor(QPalette::AlternateBase, chosen.alternateBase);
    palette.setColor(QPalette::PlaceholderText, chosen.faintText);
    palette.setColor(QPalette::Highlight, chosen.highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, chosen.link);
    palette.setColor(QPalette::ToolTipBase, chosen.toolTip);
    palette.setColor(QPalette::ToolTipText, chosen.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, chosen.text);
        palette.setColor(QPalette::Disabled, role, chosen.disabledText);
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, chosen.disabledText);
    return palette;
}

} // namespace quorvel::x11
