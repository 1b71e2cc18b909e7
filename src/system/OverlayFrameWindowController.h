#pragma once

#include <memory>

#include "base/Geometry.h"
#include "platform/OverlayWindows.h"
#include "settings/AppearanceSettings.h"
#include "system/OverlayFrameView.h"

namespace quorvel {

struct Platform;

// Owns a window that frames another application's window. Clicks go through it; it shows on every desktop and above
// full-screen windows. It is made hidden and empty, and only ever ordered out, not closed.
class OverlayFrameWindowController {
public:
    OverlayFrameWindowController(const Platform& platform, const FrameAppearance& appearance);

    // For ordering and reading; its frame and content belong to this controller.
    OverlayWindow& window();
    const OverlayFrameView& overlayView() const;

    // Redraws in another appearance.
    void setAppearance(const FrameAppearance& appearance);

    // Moves the window, whose content always fills it.
    void setFrame(const ScreenRect& frame);

    void show();
    void hide();

private:
    void display();

    OverlayFrameView view;
    std::unique_ptr<OverlayWindow> overlayWindow;
};

} // namespace quorvel
