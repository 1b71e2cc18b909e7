#pragma once

#include "base/DrawList.h"

namespace quorvel {

// How far from its corner point along each side a rounded corner bends the outline, in the unit of `radius`.
double cornerExtent(double radius, CornerStyle style);

// One corner is one Bézier curve from `extent` before the corner point to `extent` after it; its handles end `handle`
// before and after it:
//
//        extent   handle
//   ───────*─────────o    corner point
//              ·   ·
//                     o handle
//                   ·
//                     * extent
//                     │
struct RoundedCorner {
    double extent = 0.0;
    double handle = 0.0;
};

// The corners of a rectangle of that size. A radius that is too large for it is cut to half of its shorter side.
RoundedCorner roundedCorner(Size size, double radius, CornerStyle style);

// Walks around a rounded rectangle: `path` has moveTo(x, y), lineTo(x, y), curveTo(x1, y1, x2, y2, x, y) and close().
template <class Path>
void traceRoundedRectangle(Path&& path, const ViewRect& rect, double radius, CornerStyle style)
{
    const auto [extent, handle] = roundedCorner(rect.size(), radius, style);
    const double left = rect.minX();
    const double top = rect.minY();
    const double right = rect.maxX();
    const double bottom = rect.maxY();
    path.moveTo(right - extent, top);
    path.curveTo(right - handle, top, right, top + handle, right, top + extent);
    path.lineTo(right, bottom - extent);
    path.curveTo(right, bottom - handle, right - handle, bottom, right - extent, bottom);
    path.lineTo(left + extent, bottom);
    path.curveTo(left + handle, bottom, left, bottom - handle, left, bottom - extent);
    path.lineTo(left, top + extent);
    path.curveTo(left, top + handle, left + handle, top, left + extent, top);
    path.close();
}

} // namespace quorvel
