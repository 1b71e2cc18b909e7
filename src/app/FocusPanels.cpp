#include "app/FocusPanels.h"

#include <utility>

#include <fmt/format.h>

#include "app/ModeState.h"
#include "app/PopupPlacement.h"
#include "layouts/FocusListAppearance.h"
#include "layouts/MinimizedWindowsListView.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/Screens.h"
#include "settings/AppearanceSettings.h"
#include "settings/Settings.h"

namespace quorvel {

namespace {

// Above borders and labels.
constexpr int panelLevel = windowLevels::popUpMenu + 2;

template <class Window>
void appendEntries(std::vector<MinimizedWindowEntry>& entries, const std::map<std::string, Window>& windowsByLabel)
{
    for (const auto& [label, window] : windowsByLabel) {
        entries.push_back({entries.size(), label, window.appName, window.windowTitle});
    }
}

} // namespace

void FocusPanels::build(const FocusCandidates& candidates, const FocusLabels& labels)
{
    const auto screen = platform.screens.mainScreen();
    visibleFrame = screen ? screen->visibleFrame : ScreenRect();
    visibleCount = candidates.visible.size();
    minimizedCount = candidates.minimized.size();

    std::vector<MinimizedWindowEntry> minimized;
    appendEntries(minimized, labels.minimizedByLabel);
    std::vector<MinimizedWindowEntry> all;
    appendEntries(all, labels.visibleByLabel);

    auto allWindows = makePanel("All Windows", all.empty() ? minimized : std::move(all));
    const auto anchor = switcherPopupPosition(Settings(platform.userDefaults));
    allWindows->setFrame(popupRect(anchor, visibleFrame, allWindows->frame().size()));
    if (!minimized.empty()) {
        state.minimizedWindowsPanels.push_back(makePanel("Minimized Windows", std::move(minimized)));
        placeMinimizedPanel(*state.minimizedWindowsPanels.back());
    }
    state.allWindowsListPanels.push_back(std::move(allWindows));
}

void FocusPanels::refresh()
{
    for (const auto& panel : state.allWindowsListPanels) {
        state.isAllWindowsPanelVisible ? panel->orderFrontRegardless() : panel->orderOut();
    }
    for (const auto& panel : state.minimizedWindowsPanels) {
        placeMinimizedPanel(*panel);
        state.isMinimizedPanelVisible ? panel->orderFrontRegardless() : panel->orderOut();
    }
}

std::unique_ptr<OverlayWindow> FocusPanels::makePanel(std::string title,
                                                      std::vector<MinimizedWindowEntry> entries) const
{
    const auto view =
        focusListView(Settings(platform.userDefaults), platform.systemColors, std::move(title), std::move(entries));
    const auto room = visibleFrame.insetBy(popupMargin, popupMargin).size();
    auto list = view.body({platform.textMetrics, platform.systemColors}, room);
    auto panel = platform.overlayWindows.createWindow({
        .contentRect = {visibleFrame.x, visibleFrame.y, list.fittingSize.width, list.fittingSize.height},
        .level = panelLevel,
        .collectionBehavior = collectionBehaviors::besideEverything,
    });
    panel->setContent(std::move(list.content));
    panel->setClipsToBounds(false);
    return panel;
}

void FocusPanels::placeMinimizedPanel(OverlayWindow& panel) const
{
    platform.log.line(
        fmt::format("🔧 Minimized panel positioning: visible windows={}, minimized={}", visibleCount, minimizedCount));
    const auto anchor = switcherPopupPosition(Settings(platform.userDefaults));
    const auto size = panel.frame().size();
    const bool goesWithOther = state.isAllWindowsPanelVisible && !state.allWindowsListPanels.empty();
    panel.setFrame(goesWithOther
                       ? companionRect(anchor, visibleFrame, size, state.allWindowsListPanels.front()->frame())
                       : popupRect(anchor, visibleFrame, size));
}

} // namespace quorvel
