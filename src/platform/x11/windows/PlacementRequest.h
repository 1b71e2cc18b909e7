#pragma once

#include <optional>

#include "platform/x11/RootGeometry.h"
#include "platform/x11/windows/WindowManager.h"
#include "platform/x11/windows/WindowSnapshot.h"

namespace quorvel::x11 {

// Where a window shall be, as a person sees it; whole pixels. What is absent stays as it is.
struct PlacementTarget {
    std::optional<RootPoint> origin;
    std::optional<Size> size;

    // Where a window that is at `outer` will be.
    RootRect appliedTo(const RootRect& outer) const;

    bool operator==(const PlacementTarget&) const = default;
};

// Rounds to whole pixels. With both parts known the edges are rounded, so that windows that touch keep touching.
PlacementTarget wholePixels(const PlacementTarget& target);

// How far a result is off, or what is added to a request to make up for it.
struct PlacementOffset {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;

    bool operator==(const PlacementOffset&) const = default;
    PlacementOffset operator+(const PlacementOffset& other) const;
};

// From where the window is to where it shall be.
PlacementOffset offsetTo(const PlacementTarget& target, const WindowSnapshot& window);

//    +--frame--------------+        position: the frame's corner, further out where the client has a shadow
//    |  +--client-------+  |        size: the client's, shadow included
//    |  |               |  |
WindowManager::Geometry placementRequest(const PlacementTarget& target, const WindowSnapshot& window,
                                         const PlacementOffset& correction);

} // namespace quorvel::x11
