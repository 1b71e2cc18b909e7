#pragma once

#import <AppKit/AppKit.h>

#include "platform/OverlayWindows.h"
#include "platform/macos/Retained.h"
#include "platform/macos/overlays/DrawListView.h"

namespace quorvel::macos {

// Serves as window and as panel; only a panel is handed out with the operations of one.
class MacOverlayWindow final : public OverlayPanel {
public:
    // Takes a window that was created as described, and makes it look like it.
    MacOverlayWindow(Retained<NSWindow*> window, const WindowDescription& description);
    MacOverlayWindow(const MacOverlayWindow&) = delete;
    MacOverlayWindow& operator=(const MacOverlayWindow&) = delete;
    ~MacOverlayWindow() override;

    ScreenRect frame() const override;
    void setFrame(const ScreenRect& frame) override;
    void setFrameAutosaveName(std::string_view name) override;
    void setContent(DrawList content) override;
    void setClipsToBounds(bool clips) override;
    void orderFrontRegardless() override;
    void orderOut() override;
    void close() override;
    bool isVisible() const override;
    NotificationObject notificationObject() const override;
    void makeKey() override;
    bool isKey() const override;

private:
    Retained<NSWindow*> window;
    Retained<QuorvelDrawListView*> view;
};

} // namespace quorvel::macos
