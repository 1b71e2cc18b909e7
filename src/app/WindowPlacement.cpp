#include "app/WindowPlacement.h"

namespace quorvel {

WindowPlacement placeWindowInFrame(const WindowModel& frame, const ScreenRect& screenFrame,
                                   const ScreenRect& visibleFrame, const ScreenRect& mainFrame)
{
    WindowPlacement placement;
    placement.diffX = mainFrame.width - screenFrame.width - screenFrame.minX();
    placement.diffY = mainFrame.height - screenFrame.height - screenFrame.minY();
    placement.menuBarHeight = screenFrame.height - visibleFrame.height;
    placement.rect = {
        .x = screenFrame.minX() + frame.bottom_left_x * visibleFrame.width,
        .y = placement.diffY + placement.menuBarHeight + (1.0 - frame.top_right_y) * visibleFrame.height,
        .width = (frame.top_right_x - frame.bottom_left_x) * visibleFrame.width,
        .height = (frame.top_right_y - frame.bottom_left_y) * visibleFrame.height,
    };
    return placement;
}

} // namespace quorvel
