#pragma once

#include "base/Geometry.h"
#include "platform/ProcessId.h"

namespace quorvel {

// A window of another application as the window server knows it.
struct WindowInfo {
    ProcessId pid = 0;
    AxRect bounds;

    bool operator==(const WindowInfo&) const = default;
};

// Whether two rectangles, perhaps rounded on their ways, are the place of one window: windows have no other name that
// all services know.
inline bool isSamePlace(const AxRect& a, const AxRect& b)
{
    constexpr double tolerance = 2.0; // points
    return nearlyEqual(a, b, tolerance);
}

} // namespace quorvel
