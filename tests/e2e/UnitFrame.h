#pragma once

#include <cmath>
#include <vector>

#include "support/PixelRect.h"

namespace quorvel::e2e {

// A frame of a layout: fractions of an area, counted from its bottom left corner.
struct UnitFrame {
    double left = 0.0;
    double bottom = 0.0;
    double right = 1.0;
    double top = 1.0;

    // Where a window in this frame stands on the display.
    //
    //   area.y ┌──────────────┐
    //          │   (1 - top)  │
    //          │  ┌────────┐  │
    //          │  │ window │  │
    //          │  └────────┘  │ bottom
    //          └──────────────┘
    xtest::PixelRect within(const xtest::PixelRect& area) const
    {
        const auto pixels = [](double value) { return static_cast<int>(std::lround(value)); };
        return {area.x + pixels(left * area.width), area.y + pixels((1.0 - top) * area.height),
                pixels((right - left) * area.width), pixels((top - bottom) * area.height)};
    }
};

using UnitFrames = std::vector<UnitFrame>;

// The layouts that a fresh start selects, in their order, which is also that of their digits from 1 on.
inline const UnitFrames fullScreen = {{0, 0, 1, 1}};
inline const UnitFrames centered = {{0.125, 0.1, 0.875, 0.9}};
inline const UnitFrames sideBySide = {{0, 0, 0.5, 1}, {0.5, 0, 1, 1}};
inline const UnitFrames stacked = {{0, 0.5, 1, 1}, {0, 0, 1, 0.5}};
inline const UnitFrames threeSideBySide = {{0, 0, 1.0 / 3, 1}, {1.0 / 3, 0, 2.0 / 3, 1}, {2.0 / 3, 0, 1, 1}};
inline const UnitFrames fourTiles = {{0, 0.5, 0.5, 1}, {0.5, 0.5, 1, 1}, {0, 0, 0.5, 0.5}, {0.5, 0, 1, 0.5}};

} // namespace quorvel::e2e
