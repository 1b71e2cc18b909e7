#pragma once

#include <vector>

#include "system/WindowInfo.h"

namespace quorvel {

struct Platform;

// The windows that a person works with, front to back: on screen, on the ordinary layer, wider and higher than 50
// points, and not this program's own. A window of which owner, layer or bounds are unknown is left out.
std::vector<WindowInfo> onScreenWindows(const Platform& platform);

} // namespace quorvel
