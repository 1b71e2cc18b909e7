#include "platform/x11/painting/RoundedPath.h"

#include <algorithm>
#include <numbers>

namespace quorvel::x11 {

namespace {

// A continuous corner starts to bend this many radii before its corner point, so that the curvature grows slowly
// instead of jumping from none to 1 / radius.
constexpr double continuousExtent = 1.5;

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
//
// The curve's middle lies (extent + 3 handle) / 8 from both sides. The handle is chosen so that this is where the arc
// of the radius has its middle, whatever the extent; with extent == radius the curve is that arc.
double handleLength(double radius, double extent)
{
    constexpr double middleOfArc = 1.0 - 1.0 / std::numbers::sqrt2;
    return std::max((8.0 * middleOfArc * radius - extent) / 3.0, 0.0);
}

} // namespace

double cornerExtent(double radius, CornerStyle style)
{
    return style == CornerStyle::continuous ? radius * continuousExtent : radius;
}

void addRoundedRectangle(cairo_t* context, const ViewRect& rect, double radius, CornerStyle style)
{
    const double halfSide = std::min(rect.width, rect.height) / 2.0;
    const double fitting = std::clamp(radius, 0.0, halfSide);
    if (fitting <= 0.0) {
        cairo_rectangle(context, rect.x, rect.y, rect.width, rect.height);
        return;
    }
    const double extent = std::min(cornerExtent(fitting, style), halfSide);
    const double handle = handleLength(fitting, extent);
    const double left = rect.minX();
    const double top = rect.minY();
    const double right = rect.maxX();
    const double bottom = rect.maxY();
    cairo_new_sub_path(context);
    cairo_move_to(context, right - extent, top);
    cairo_curve_to(context, right - handle, top, right, top + handle, right, top + extent);
    cairo_line_to(context, right, bottom - extent);
    cairo_curve_to(context, right, bottom - handle, right - handle, bottom, right - extent, bottom);
    cairo_line_to(context, left + extent, bottom);
    cairo_curve_to(context, left + handle, bottom, left, bottom - handle, left, bottom - extent);
    cairo_line_to(context, left, top + extent);
    cairo_curve_to(context, left, top + handle, left + handle, top, left + extent, top);
    cairo_close_path(context);
}

} // namespace quorvel::x11
