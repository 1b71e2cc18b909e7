#pragma once

#include <vector>

#include "base/Geometry.h"
#include "platform/Screens.h"

namespace quorvel {

// The limits of what the move/resize mode makes of a window's size; the origin stays.

// At least 100 by 100 points.
AxRect withLeastSize(AxRect rect);

// Ends at the right and bottom edges of the screen's visible frame, unless another screen goes on there.
AxRect endingOnScreen(AxRect rect, const Screen& screen, const std::vector<Screen>& screens);

} // namespace quorvel
