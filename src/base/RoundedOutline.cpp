#include "base/RoundedOutline.h"

#include <algorithm>
#include <numbers>

namespace quorvel {

namespace {

// A continuous corner starts to bend this many radii before its corner point, so that the curvature grows slowly
// instead of jumping from none to 1 / radius.
constexpr double continuousExtent = 1.5;

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

RoundedCorner roundedCorner(Size size, double radius, CornerStyle style)
{
    const double halfSide = std::min(size.width, size.height) / 2.0;
    const double fitting = std::clamp(radius, 0.0, halfSide);
    const double extent = std::min(cornerExtent(fitting, style), halfSide);
    return {extent, handleLength(fitting, extent)};
}

} // namespace quorvel
