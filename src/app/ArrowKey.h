#pragma once

#include "base/Geometry.h"

namespace quorvel {

// The direction keys of the move/resize mode.
enum class ArrowKey { left, right, up, down };

// Whether a direction key moves the window, or resizes it by its right or bottom edge.
enum class ArrowEffect { move, resize };

constexpr bool isHorizontal(ArrowKey key)
{
    return key == ArrowKey::left || key == ArrowKey::right;
}

// Of x or y, in accessibility coordinates.
constexpr double signOf(ArrowKey key)
{
    return key == ArrowKey::right || key == ArrowKey::down ? 1.0 : -1.0;
}

// The rectangle with its origin or its size changed by `distance` along the key's axis.
constexpr AxRect changedBy(AxRect rect, ArrowKey key, ArrowEffect effect, double distance)
{
    if (effect == ArrowEffect::move) {
        (isHorizontal(key) ? rect.x : rect.y) += distance;
    } else {
        (isHorizontal(key) ? rect.width : rect.height) += distance;
    }
    return rect;
}

} // namespace quorvel
