#pragma once

#include <QFont>

// Distances and fonts that the panes have in common; pixels, which Qt scales on screens of high resolution.
namespace quorvel::x11::paneMetrics {

inline constexpr int margin = 24;
inline constexpr int columnSpacing = 24;
inline constexpr int groupSpacing = 16;
inline constexpr int titleSpacing = 6;
inline constexpr int cardMargin = 14;
inline constexpr int rowSpacing = 4;

// Lines between a title and its control are hard to follow where a column is wider.
inline constexpr int widestColumnInCharacters = 90;

inline QFont scaled(QFont font, double factor)
{
    if (font.pointSizeF() > 0.0) {
        font.setPointSizeF(font.pointSizeF() * factor);
    }
    return font;
}

inline QFont smallFont(const QFont& font)
{
    return scaled(font, 0.9);
}

inline QFont titleFont(QFont font)
{
    font.setWeight(QFont::DemiBold);
    return font;
}

inline QFont headingFont(const QFont& font)
{
    return titleFont(scaled(font, 1.25));
}

} // namespace quorvel::x11::paneMetrics
