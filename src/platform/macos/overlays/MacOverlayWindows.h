#pragma once

#include "platform/OverlayWindows.h"

namespace quorvel::macos {

// Overlays as borderless windows of AppKit.
class MacOverlayWindows final : public OverlayWindows {
public:
    std::unique_ptr<OverlayWindow> createWindow(const WindowDescription& description) override;
    std::unique_ptr<OverlayPanel> createPanel(const WindowDescription& description,
                                              std::function<void(const KeyEvent&)> onKeyDown) override;
};

} // namespace quorvel::macos
