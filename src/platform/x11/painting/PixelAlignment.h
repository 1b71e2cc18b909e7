#pragma once

#include "base/DrawList.h"
#include "platform/x11/painting/PixelImage.h"

namespace quorvel::x11 {

// The list of a view of `viewSize` points in pixels of an area of `pixelSize`, with crisp edges: the outer edges of
// every shape lie between pixels and strokes are whole pixels wide. Text boxes grow to whole pixels. Radii and strokes
// are scaled by `scale`; positions by what makes the view fill the area, which differs from it by less than one pixel.
// Fonts keep their sizes, as the painter scales texts that are set. Commands whose numbers no screen can show are left
// out.
DrawList alignedToPixels(const DrawList& list, Size viewSize, PixelSize pixelSize, double scale);

} // namespace quorvel::x11
