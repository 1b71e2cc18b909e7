#pragma once

#include "base/DrawList.h"

namespace quorvel::macos {

// Paints into the current graphics context, whose y axis points down, as draw lists have it. The outer edges of shapes
// come to lie between pixels, of which there are `scale` to a point.
void paint(const DrawList& list, double scale);

} // namespace quorvel::macos
