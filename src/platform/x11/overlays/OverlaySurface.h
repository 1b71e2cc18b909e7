#pragma once

#include <cstdint>

#include <xcb/xcb.h>

#include "base/DrawList.h"
#include "base/Geometry.h"
#include "base/Subscription.h"
#include "platform/OverlayWindows.h"
#include "platform/x11/overlays/OverlayStacking.h"
#include "platform/x11/painting/PaintPlan.h"
#include "platform/x11/painting/PictureCache.h"

namespace quorvel::x11 {

class OverlayStage;

// One overlay window. What it is told to show reaches the server together with that of all other windows, at the end
// of the turn of the main loop.
class OverlaySurface {
public:
    OverlaySurface(OverlayStage& stage, const WindowDescription& description);
    OverlaySurface(const OverlaySurface&) = delete;
    OverlaySurface& operator=(const OverlaySurface&) = delete;
    ~OverlaySurface();

    const ScreenRect& frame() const { return screenFrame; }
    void setFrame(const ScreenRect& frame);
    void setContent(DrawList content);
    void orderFront();
    void orderOut();
    void close();
    bool isVisible() const { return isShown; }

    // The X window; none until it was shown for the first time, and after close().
    xcb_window_t window() const { return xWindow; }

    // Additional events that the window's owner wants, from its next showing on.
    void setEventMask(std::uint32_t mask) { ownersEventMask = mask; }

    // Has the window stay the same, which may have the focus, when blending becomes available or unavailable. One that
    // was made where nothing could blend goes on to look like that.
    void keepWindow() { isWindowKept = true; }

    // For the stage: brings the server up to date, in two steps. All windows are prepared before the first is shown, so
    // that a compositor sees them come at once and paints them together.
    void prepare();
    void show();

    // For the stage: draws anew because blending has become available or unavailable.
    void invalidate();

    // For the stage: repairs what was uncovered, unless it was drawn after that.
    void expose(std::uint32_t sequence);

private:
    Blending blending() const;
    void scheduleIfShown();
    OverlayStacking::Age place();
    bool isInterchangeable() const;
    OverlayStacking::Age obtainWindow();
    void createWindow();
    void giveUpWindow();
    void giveUpUnfitWindow();
    void cutToPlan();
    void redraw();

    OverlayStage& stage;
    WindowDescription description;
    ScreenRect screenFrame;
    DrawList content;
    bool isShown = false;

    // What the server has and what it still lacks
    xcb_window_t xWindow = XCB_WINDOW_NONE;
    Blending windowBlending = Blending::unavailable;
    bool isWindowKept = false;
    PixelRect rootRect;
    PaintPlan plan;
    bool isMapped = false;
    bool isCut = false;
    bool isPlanDue = true;
    bool isDrawingDue = false;
    bool isRaiseDue = false;
    std::uint32_t drawnAt = 0;
    std::uint32_t ownersEventMask = XCB_EVENT_MASK_NO_EVENT;
    Subscription events;
};

} // namespace quorvel::x11
