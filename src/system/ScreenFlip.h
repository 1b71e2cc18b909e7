#pragma once

#include <vector>

#include "base/Geometry.h"
#include "platform/Screens.h"

namespace quorvel {

// Turns the y axis over: what was measured from `top` downwards is then measured from 0 upwards, and the reverse.
//
//   AX    0 -+- - - - - - -   top      screen
//            |   +---+  y
//            |   |   |
//            |   +---+        y' = top - y - height
//       y    v                0
template <class To, class From>
Rect<To> flipped(const Rect<From>& rect, double top)
{
    return {rect.x, top - rect.y - rect.height, rect.width, rect.height};
}

// The same by the height of the primary screen; without screens only the type changes.
template <class To, class From>
Rect<To> flippedByPrimaryHeight(const Rect<From>& rect, const std::vector<Screen>& screens)
{
    return screens.empty() ? Rect<To>{rect.x, rect.y, rect.width, rect.height}
                           : flipped<To>(rect, screens.front().frame.height);
}

} // namespace quorvel
