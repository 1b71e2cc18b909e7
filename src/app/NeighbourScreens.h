#pragma once

#include <vector>

#include "platform/Screens.h"

namespace quorvel {

enum class ScreenSide { left, right, above, below };

// Whether another screen lies next to this one: beyond its edge there, or up to a point over it, and beside some of it.
//
//   +-------++-------+
//   |       ||       |
//   |   S   || right |
//   +-------+|       |
//      +-----+-------+
//      |    below   |
//      +------------+
bool hasNeighbour(const Screen& screen, ScreenSide side, const std::vector<Screen>& screens);

} // namespace quorvel
