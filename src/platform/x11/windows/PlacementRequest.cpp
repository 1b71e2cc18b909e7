#include "platform/x11/windows/PlacementRequest.h"

#include <algorithm>
#include <cmath>

namespace quorvel::x11 {

namespace {

std::int32_t whole(double value)
{
    return static_cast<std::int32_t>(std::lround(value));
}

} // namespace

RootRect PlacementTarget::appliedTo(const RootRect& outer) const
{
    const auto corner = origin.value_or(outer.origin());
    const auto extent = size.value_or(outer.size());
    return {corner.x, corner.y, extent.width, extent.height};
}

PlacementTarget wholePixels(const PlacementTarget& target)
{
    PlacementTarget result = target;
    const auto origin = target.origin.value_or(RootPoint{});
    const RootPoint corner{std::round(origin.x), std::round(origin.y)};
    if (target.origin) {
        result.origin = corner;
    }
    if (target.size) {
        result.size = Size{std::max(std::round(origin.x + target.size->width) - corner.x, 1.0),
                           std::max(std::round(origin.y + target.size->height) - corner.y, 1.0)};
    }
    return result;
}

PlacementOffset PlacementOffset::operator+(const PlacementOffset& other) const
{
    return {x + other.x, y + other.y, width + other.width, height + other.height};
}

PlacementOffset offsetTo(const PlacementTarget& target, const WindowSnapshot& window)
{
    const auto outer = window.outer();
    const auto wanted = target.appliedTo(outer);
    return {whole(wanted.x - outer.x), whole(wanted.y - outer.y), whole(wanted.width - outer.width),
            whole(wanted.height - outer.height)};
}

WindowManager::Geometry placementRequest(const PlacementTarget& target, const WindowSnapshot& window,
                                         const PlacementOffset& correction)
{
    const auto& frame = window.frame;
    const auto& shadow = window.shadow;
    WindowManager::Geometry request;
    if (target.origin) {
        request.x = whole(target.origin->x) - shadow.left + correction.x;
        request.y = whole(target.origin->y) - shadow.top + correction.y;
    }
    if (target.size) {
        request.width = std::max(
            whole(target.size->width) - frame.left - frame.right + shadow.left + shadow.right + correction.width, 1);
        request.height = std::max(
            whole(target.size->height) - frame.top - frame.bottom + shadow.top + shadow.bottom + correction.height, 1);
    }
    return request;
}

} // namespace quorvel::x11
