#pragma once

#include <cstdint>

#include "base/Geometry.h"

namespace quorvel::x11 {

// Pixels of the root window, origin at its top left, y down.
struct RootSpace {};

using RootPoint = Point<RootSpace>;
using RootRect = Rect<RootSpace>;

// How far something reaches over each edge of a rectangle, in pixels.
struct Extents {
    std::int32_t left = 0;
    std::int32_t right = 0;
    std::int32_t top = 0;
    std::int32_t bottom = 0;

    bool operator==(const Extents&) const = default;
};

} // namespace quorvel::x11
