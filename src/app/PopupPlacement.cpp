#include "app/PopupPlacement.h"

#include <algorithm>
#include <cmath>

#include "layouts/LabelPlacement.h"

namespace quorvel {

namespace {

ScreenRect usablePart(const ScreenRect& visibleFrame)
{
    return visibleFrame.insetBy(popupMargin, popupMargin);
}

// The top left corner wins where not all of it fits.
ScreenRect movedInto(const ScreenRect& area, ScreenRect rect)
{
    rect.x = std::max(std::min(rect.x, area.maxX() - rect.width), area.minX());
    rect.y = std::min(std::max(rect.y, area.minY()), area.maxY() - rect.height);
    return {std::round(rect.x), std::round(rect.y), rect.width, rect.height};
}

} // namespace

ScreenRect popupRect(LabelPosition anchor, const ScreenRect& visibleFrame, const Size& size)
{
    return movedInto(usablePart(visibleFrame), anchoredRect(anchor, visibleFrame, size, popupMargin));
}

ScreenRect companionRect(LabelPosition anchor, const ScreenRect& visibleFrame, const Size& size,
                         const ScreenRect& other)
{
    constexpr double gap = 12.0;
    const auto area = usablePart(visibleFrame);
    // Of two popups on one another those edges agree that the anchor names; of two side by side the upper ones.
    const double x = anchoredRect(anchor, other, size, 0.0).x;
    const double y = other.maxY() - size.height;
    const auto below = movedInto(area, {x, other.minY() - gap - size.height, size.width, size.height});
    const auto above = movedInto(area, {x, other.maxY() + gap, size.width, size.height});
    const auto toTheRight = movedInto(area, {other.maxX() + gap, y, size.width, size.height});
    const auto toTheLeft = movedInto(area, {other.minX() - gap - size.width, y, size.width, size.height});
    for (const auto& rect : {below, above, toTheRight, toTheLeft}) {
        if (!rect.intersects(other)) {
            return rect;
        }
    }
    return below;
}

} // namespace quorvel
