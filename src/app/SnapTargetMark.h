#pragma once

#include <memory>

#include "base/Geometry.h"

namespace quorvel {

struct Platform;
class OverlayFrameWindowController;

// Shows the frame around the edge that a window has snapped to, in the appearance that the settings have now. It is
// drawn around a strip along the whole edge, 6 points wide, and outside of it, so that all of its border can be seen:
//
//    +-------------+
//    |    +--------|--+
//    |    | strip  |
//    |    +--------|--+   the edge runs through the middle of the strip
//    +-------------+
//
// Makes the frame's window if there is none yet.
void showSnapTarget(const Platform& platform, std::unique_ptr<OverlayFrameWindowController>& overlay,
                    const AxRect& targetEdge);

} // namespace quorvel
