#include "app/FocusSwitcherMode.h"

#include <string>
#include <utility>

#include "app/ModeState.h"
#include "app/StateManager.h"
#include "base/Utf8.h"
#include "layouts/OverlayWindowManager.h"
#include "platform/EventMonitors.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/Workspace.h"
#include "settings/AppearanceSettings.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"
#include "system/GlobalEventBlocker.h"
#include "system/ScreensModel.h"
#include "system/WindowElementModel.h"

namespace quorvel {

FocusSwitcherMode::FocusSwitcherMode(ModeEnvironment environment, ModeState& state, std::function<void()> dismiss)
    : environment(std::move(environment)),
      state(state),
      dismiss(std::move(dismiss)),
      panels(this->environment.platform, state)
{}

void FocusSwitcherMode::start()
{
    const auto& platform = environment.platform;
    const auto candidates = focusCandidates(platform);
    if (candidates.isEmpty()) {
        platform.log.line("No windows found for focus switcher");
        return;
    }
    const Settings settings(platform.userDefaults);
    const auto toggles = focusToggleKeys(settings);
    auto labels = FocusLabels::assign(candidates, focusAlphabet(platform.keyboardLayout, toggles));
    current = std::make_shared<const Showing>(Showing{toggles, std::move(labels)});
    if (focusSwitcherDisplayMode(settings) == FocusSwitcherDisplayMode::windowList) {
        state.isAllWindowsPanelVisible = true;
    } else {
        showLabels(current->labels);
    }
    showPanels(candidates, current->labels);
    environment.stateManager.currentState = StateManager::States::overlayOn;
    captureKeys();
    watchMouse();
}

void FocusSwitcherMode::showLabels(const FocusLabels& labels)
{
    const auto& platform = environment.platform;
    for (const auto& [label, window] : labels.visibleByLabel) {
        const auto bounds = ScreensModel::appKitRectFromAccessibility(platform, window.bounds);
        platform.log.line("🔍 Focus Switcher: Label " + label + " → " + window.appName + " - " + window.windowTitle);
        environment.overlayWindowManager.showWindowLabel(
            label, VisibleWindowInfo{bounds, window.appName, window.windowTitle}, bounds);
    }
}

void FocusSwitcherMode::showPanels(const FocusCandidates& candidates, const FocusLabels& labels)
{
    panels.build(candidates, labels);
    if (state.isAllWindowsPanelVisible) {
        state.allWindowsListPanels.front()->orderFrontRegardless();
    }
}

// A key that was typed before an earlier one ended the run may arrive after that.
void FocusSwitcherMode::captureKeys()
{
    auto* blocker = environment.eventBlocker;
    if (blocker == nullptr) {
        return;
    }
    blocker->clearBlockedKeys();
    blocker->blockAllKeys();
    blocker->setOnBlockKey(weakly.guard([this, showing = std::weak_ptr(current)](const CapturedKey& key) {
        if (const auto present = showing.lock()) {
            handleKey(*present, key);
        }
    }));
}

void FocusSwitcherMode::watchMouse()
{
    state.focusSwitcherMouseMonitor =
        environment.platform.eventMonitors.addGlobalMouseDownMonitor(weakly.guard([this] { dismiss(); }));
}

void FocusSwitcherMode::handleKey(const Showing& showing, const CapturedKey& key)
{
    if (key.keyCode == keyCodes::escape) {
        dismiss();
    } else if (key.keyCode == showing.toggles.minimized) {
        toggle(state.isMinimizedPanelVisible, state.minimizedWindowsPanels);
    } else if (key.keyCode == showing.toggles.allWindows) {
        toggle(state.isAllWindowsPanelVisible, state.allWindowsListPanels);
    } else {
        choose(upperCased(key.character), showing);
    }
}

void FocusSwitcherMode::toggle(bool& isPanelVisible, const std::vector<std::unique_ptr<OverlayWindow>>& shownPanels)
{
    if (!shownPanels.empty()) {
        isPanelVisible = !isPanelVisible;
        panels.refresh();
    }
}

void FocusSwitcherMode::choose(const std::string& label, const Showing& showing)
{
    const auto visible = showing.labels.visibleByLabel.find(label);
    const auto minimized = showing.labels.minimizedByLabel.find(label);
    if (visible != showing.labels.visibleByLabel.end()) {
        focus(visible->second);
    } else if (minimized != showing.labels.minimizedByLabel.end()) {
        restore(minimized->second);
    }
    dismiss();
}

void FocusSwitcherMode::focus(const FocusWindowInfo& window)
{
    const auto& platform = environment.platform;
    const auto stored = Settings(platform.userDefaults).booleanValue(settingsKeys::fsFocusExactWindow);
    if (stored.value_or(platform.focusesExactWindow)) {
        raiseExactly(window);
    }
    activate(window.pid);
}

void FocusSwitcherMode::restore(const MinimizedWindowInfo& window)
{
    auto& accessibility = environment.platform.accessibility;
    accessibility.setAttribute(window.axWindow, axNames::minimized, false);
    accessibility.performAction(window.axWindow, axNames::raise);
    activate(window.pid);
}

// Geometry finds the first of windows that lie on one another, and none that has moved since.
void FocusSwitcherMode::raiseExactly(const FocusWindowInfo& window)
{
    const auto& platform = environment.platform;
    const bool isFound =
        !window.hasTwin && WindowElementModel::findWindow(platform, window.pid, window.bounds) != nullptr;
    if (!isFound && window.axWindow) {
        platform.accessibility.performAction(window.axWindow, axNames::raise);
    }
}

// Where a panel stands in for the event tap, it gives the focus back when it goes: then to the chosen application.
void FocusSwitcherMode::activate(ProcessId process)
{
    environment.platform.workspace.activate(process);
    if (environment.eventBlocker != nullptr) {
        environment.eventBlocker->setPreviousApp(process);
    }
}

} // namespace quorvel
