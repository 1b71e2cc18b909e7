#pragma once

#include <memory>
#include <vector>

#include "base/Subscription.h"
#include "platform/OverlayWindows.h"
#include "system/OverlayFrameWindowController.h"
#include "system/WindowElementModel.h"

namespace quorvel {

// What modes keep between two keys. A mode fills its own part; the main controller empties all of it when modes end.
struct ModeState {
    // The window being moved; present exactly while the move/resize mode is on.
    std::shared_ptr<WindowElementModel> moveResizeElement;
    // Marks what that window snaps to; once made it is only ordered out, and used again.
    std::unique_ptr<OverlayFrameWindowController> snapTargetOverlay;

    // The focus switcher: clicks anywhere, its panels and which of them show.
    Subscription focusSwitcherMouseMonitor;
    std::vector<std::unique_ptr<OverlayWindow>> minimizedWindowsPanels;
    std::vector<std::unique_ptr<OverlayWindow>> allWindowsListPanels;
    bool isMinimizedPanelVisible = false;
    bool isAllWindowsPanelVisible = false;

    // Keys typed into this program's own windows.
    Subscription eventMonitor;
};

} // namespace quorvel
