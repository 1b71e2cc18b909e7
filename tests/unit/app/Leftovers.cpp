#include "tests/unit/app/Leftovers.h"

#include <fmt/format.h>

#include "app/MainController.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "system/GlobalEventBlocker.h"

namespace quorvel {

std::optional<std::string> leftoverOf(MainController& controller, const GlobalEventBlocker& blocker,
                                      const SimulatedDesktop& desktop)
{
    const auto& modes = controller.modeState();
    if (modes.moveResizeElement || controller.stateManager().currentState != StateManager::States::normal) {
        return "a mode is still on";
    }
    if (!blocker.blockedKeyCodes().empty()) {
        return "keys are blocked without a mode";
    }
    if (const auto windows = desktop.overlayWindows.visible(); !windows.empty()) {
        return fmt::format("{} windows are up without a mode", windows.size());
    }
    if (modes.focusSwitcherMouseMonitor.isActive() || !modes.minimizedWindowsPanels.empty() ||
        !modes.allWindowsListPanels.empty() || modes.isMinimizedPanelVisible || modes.isAllWindowsPanelVisible ||
        modes.eventMonitor.isActive()) {
        return "a mode left something behind";
    }
    return std::nullopt;
}

} // namespace quorvel
