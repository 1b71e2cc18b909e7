#include "app/ResizeLimits.h"

#include <algorithm>

#include "app/NeighbourScreens.h"
#include "system/ScreenFlip.h"

namespace quorvel {

AxRect withLeastSize(AxRect rect)
{
    constexpr double leastExtent = 100.0; // points
    rect.width = std::max(rect.width, leastExtent);
    rect.height = std::max(rect.height, leastExtent);
    return rect;
}

AxRect endingOnScreen(AxRect rect, const Screen& screen, const std::vector<Screen>& screens)
{
    const auto visibleFrame = flippedByPrimaryHeight<AxSpace>(screen.visibleFrame, screens);
    if (rect.maxX() > visibleFrame.maxX() && !hasNeighbour(screen, ScreenSide::right, screens)) {
        rect.width = visibleFrame.maxX() - rect.x;
    }
    if (rect.maxY() > visibleFrame.maxY() && !hasNeighbour(screen, ScreenSide::below, screens)) {
        rect.height = visibleFrame.maxY() - rect.y;
    }
    return rect;
}

} // namespace quorvel
