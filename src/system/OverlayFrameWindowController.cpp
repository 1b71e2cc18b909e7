#include "system/OverlayFrameWindowController.h"

#include "platform/Platform.h"

namespace quorvel {

OverlayFrameWindowController::OverlayFrameWindowController(const Platform& platform, const FrameAppearance& appearance)
    : view(platform.systemColors),
      overlayWindow(platform.overlayWindows.createWindow({
          .contentRect = {},
          .level = windowLevels::status,
          .collectionBehavior = collectionBehaviors::canJoinAllSpaces | collectionBehaviors::fullScreenAuxiliary,
      }))
{
    setAppearance(appearance);
}

OverlayWindow& OverlayFrameWindowController::window()
{
    return *overlayWindow;
}

const OverlayFrameView& OverlayFrameWindowController::overlayView() const
{
    return view;
}

void OverlayFrameWindowController::setAppearance(const FrameAppearance& appearance)
{
    view.setAppearance(appearance);
    display();
}

void OverlayFrameWindowController::setFrame(const ScreenRect& frame)
{
    overlayWindow->setFrame(frame);
    display();
}

void OverlayFrameWindowController::show()
{
    overlayWindow->orderFrontRegardless();
}

void OverlayFrameWindowController::hide()
{
    overlayWindow->orderOut();
}

void OverlayFrameWindowController::display()
{
    overlayWindow->setContent(view.drawList(overlayWindow->frame().size()));
}

} // namespace quorvel
