#pragma once

#include <cmath>
#include <vector>

#include "support/PixelRect.h"

namespace quorvel::xtest {

// A frame of a layout: fractions of an area, counted from its bottom left corner.
struct UnitFrame {
    double left = 0.0;
    double bottom = 0.0;
    double right = 1.0;
    double top = 1.0;

    // Where a window in this frame stands on the display; frames that touch stay together.
    //
    //   area.y ┌──────────────┐
    //          │   (1 - top)  │
    //          │  ┌────────┐  │
    //          │  │ window │  │
    //          │  └────────┘  │ bottom
    //          └──────────────┘
    PixelRect within(const PixelRect& area) const
    {
        const auto pixels = [](double value) { return static_cast<int>(std::lround(value)); };
        const int x = pixels(area.x + left * area.width);
        const int y = pixels(area.y + (1.0 - top) * area.height);
        return {x, y, pixels(area.x + right * area.width) - x, pixels(area.y + (1.0 - bottom) * area.height) - y};
    }
};

using UnitFrames = std::vector<UnitFrame>;

} // namespace quorvel::xtest
