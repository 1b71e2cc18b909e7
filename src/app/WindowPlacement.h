#pragma once

#include "base/Geometry.h"
#include "layouts/WindowModel.h"

namespace quorvel {

// Where a window goes that is put into a frame of a layout, with the distances that the place follows from.
struct WindowPlacement {
    double diffX = 0.0;         // right edge of the primary screen minus right edge of the target screen
    double diffY = 0.0;         // top of the primary screen down to the top of the target screen
    double menuBarHeight = 0.0; // everything that the visible frame leaves out vertically, a dock included
    AxRect rect;

    bool operator==(const WindowPlacement&) const = default;
};

// `screenFrame` and `visibleFrame` belong to the target screen, `mainFrame` is the primary screen's frame.
//
//   accessibility y                                        screen y
//        0 ┌ mainFrame ─────┐                                 ▲
//          │         diffY ↕│
//          │                └┬ screenFrame ───────────────┐
//          │                 │ menuBarHeight              │
//          │                 ├ visibleFrame ──────────────┤ top_right_y = 1
//          │                 │        ┌ rect ──┐          │
//          │                 │        │        │          │
//        ▼ └─────────────────┴────────┴────────┴──────────┘ bottom_left_y = 0
//
// x counts from the left edge of the screen, not of its visible frame.
WindowPlacement placeWindowInFrame(const WindowModel& frame, const ScreenRect& screenFrame,
                                   const ScreenRect& visibleFrame, const ScreenRect& mainFrame);

} // namespace quorvel
