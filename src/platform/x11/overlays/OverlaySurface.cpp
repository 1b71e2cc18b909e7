#include "platform/x11/overlays/OverlaySurface.h"

#include <utility>

#include "platform/x11/Connection.h"
#include "platform/x11/overlays/OverlayStage.h"

namespace quorvel::x11 {

OverlaySurface::OverlaySurface(OverlayStage& stage, const WindowDescription& description)
    : stage(stage), description(description), screenFrame(description.contentRect)
{
    stage.add(*this);
}

OverlaySurface::~OverlaySurface()
{
    close();
    stage.remove(*this);
}

void OverlaySurface::setFrame(const ScreenRect& frame)
{
    if (frame != screenFrame) {
        screenFrame = frame;
        scheduleIfShown();
    }
}

void OverlaySurface::setContent(DrawList list)
{
    if (list != content) {
        content = std::move(list);
        isPlanDue = true;
        scheduleIfShown();
    }
}

void OverlaySurface::orderFront()
{
    isShown = true;
    isRaiseDue = true;
    stage.schedule(*this);
}

void OverlaySurface::orderOut()
{
    isShown = false;
    if (isMapped) {
        isMapped = false;
        stage.stacking.remove(xWindow);
        xcb_unmap_window(stage.connection.xcb(), xWindow);
    }
}

void OverlaySurface::close()
{
    isShown = false;
    if (xWindow != XCB_WINDOW_NONE) {
        giveUpWindow();
    }
}

void OverlaySurface::giveUpWindow()
{
    isMapped = false;
    stage.stacking.remove(xWindow);
    const bool isReusable = isInterchangeable() && windowBlending == stage.blending();
    stage.dispose(std::exchange(xWindow, XCB_WINDOW_NONE), std::move(events),
                  isReusable ? OverlayStage::Reuse::possible : OverlayStage::Reuse::impossible);
    isCut = false;
    isPlanDue = true;
}

void OverlaySurface::giveUpUnfitWindow()
{
    if (xWindow == XCB_WINDOW_NONE || isWindowKept || windowBlending == stage.blending()) {
        return;
    }
    xcb_unmap_window(stage.connection.xcb(), xWindow);
    giveUpWindow();
    isRaiseDue = true;
}

Blending OverlaySurface::blending() const
{
    return windowBlending == Blending::available ? stage.blending() : Blending::unavailable;
}

void OverlaySurface::scheduleIfShown()
{
    if (isShown) {
        stage.schedule(*this);
    }
}

void OverlaySurface::prepare()
{
    if (!isShown) {
        return;
    }
    giveUpUnfitWindow();
    const auto age = place();
    if (std::exchange(isPlanDue, false)) {
        plan = stage.plan(content, screenFrame.size(), {rootRect.width, rootRect.height}, blending());
        isDrawingDue = true;
        cutToPlan();
    }
    if (std::exchange(isRaiseDue, false)) {
        stage.stacking.raise(xWindow, description.level, age);
    }
}

void OverlaySurface::show()
{
    if (!isShown) {
        return;
    }
    if (!std::exchange(isMapped, true)) {
        xcb_map_window(stage.connection.xcb(), xWindow);
        drawnAt = stage.graphics.draw(xWindow, plan, windowBlending);
    } else if (isDrawingDue) {
        redraw();
    }
    isDrawingDue = false;
}

OverlayStacking::Age OverlaySurface::place()
{
    const auto target = stage.rootRect(screenFrame);
    if (target.width != rootRect.width || target.height != rootRect.height) {
        isPlanDue = true;
    }
    const bool isPlaced = std::exchange(rootRect, target) == target;
    if (xWindow == XCB_WINDOW_NONE) {
        return obtainWindow();
    }
    if (!isPlaced) {
        stage.graphics.place(xWindow, rootRect);
    }
    return OverlayStacking::Age::old;
}

bool OverlaySurface::isInterchangeable() const
{
    return description.ignoresMouseEvents && ownersEventMask == XCB_EVENT_MASK_NO_EVENT && !isWindowKept;
}

OverlayStacking::Age OverlaySurface::obtainWindow()
{
    windowBlending = stage.blending();
    const auto spare = isInterchangeable() ? stage.takeSpareWindow() : std::nullopt;
    if (spare) {
        xWindow = *spare;
        stage.graphics.place(xWindow, rootRect);
    } else {
        createWindow();
    }
    events = stage.connection.selectEvents(xWindow, XCB_EVENT_MASK_EXPOSURE | ownersEventMask);
    return spare ? OverlayStacking::Age::old : OverlayStacking::Age::newborn;
}

void OverlaySurface::createWindow()
{
    xWindow = stage.graphics.createWindow(rootRect, windowBlending);
    if (description.ignoresMouseEvents) {
        stage.graphics.ignoreMouse(xWindow);
    }
}

void OverlaySurface::cutToPlan()
{
    if (blending() == Blending::unavailable) {
        stage.graphics.cut(xWindow, opaqueRegion(plan));
        isCut = true;
    } else if (std::exchange(isCut, false)) {
        stage.graphics.removeCut(xWindow);
    }
}

void OverlaySurface::redraw()
{
    stage.graphics.clear(xWindow);
    drawnAt = stage.graphics.draw(xWindow, plan, windowBlending);
}

void OverlaySurface::invalidate()
{
    isPlanDue = true;
    scheduleIfShown();
}

void OverlaySurface::expose(std::uint32_t sequence)
{
    // Mapping exposes the whole window; what was drawn after it in the same breath need not be drawn again.
    const bool wasDrawnLater = static_cast<std::int32_t>(sequence - drawnAt) < 0;
    if (isMapped && !wasDrawnLater) {
        redraw();
    }
}

} // namespace quorvel::x11
