#pragma once

#include <cairo.h>

#include "base/DrawList.h"

namespace quorvel::x11 {

// Adds the outline of a rounded rectangle to the current path. A radius that is too large for the rectangle is cut to
// half of its shorter side.
void addRoundedRectangle(cairo_t* context, const ViewRect& rect, double radius, CornerStyle style);

} // namespace quorvel::x11
