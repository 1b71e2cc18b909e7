#pragma once

#include <QImage>

#include "base/DrawList.h"
#include "base/Geometry.h"

namespace quorvel::x11 {

class TextLayouts;

// The list of a view of `size` points, with `scale` pixels a point.
QImage drawnImage(const DrawList& list, Size size, double scale, const TextLayouts& layouts);

} // namespace quorvel::x11
