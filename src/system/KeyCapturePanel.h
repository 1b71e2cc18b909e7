#pragma once

#include <memory>

#include "base/Geometry.h"
#include "base/WeakGuard.h"
#include "platform/OverlayWindows.h"
#include "system/CapturedKey.h"

namespace quorvel {

struct Platform;

// An invisible panel that takes the keyboard focus, so that keys come here where no event tap can be had.
class KeyCapturePanel {
public:
    // Not shown yet. The handler gets every key-down that reaches the panel, from the main loop.
    KeyCapturePanel(const Platform& platform, const ScreenRect& contentRect, CapturedKeyHandler onKeyDown);

    void orderFrontRegardless();
    void makeKey();
    void orderOut();
    bool isVisible() const;
    bool isKey() const;

private:
    CapturedKeyHandler onKeyDown;
    std::unique_ptr<OverlayPanel> panel;
    WeakGuard weakly;
};

} // namespace quorvel
