#include "app/MainController.h"

#include <cstdint>
#include <limits>
#include <utility>

#include <fmt/format.h>

#include "app/NumberInRange.h"
#include "app/OverlayNavigation.h"
#include "platform/Log.h"
#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "settings/Settings.h"
#include "settings/ShortcutSettings.h"
#include "system/GlobalEventBlocker.h"

namespace quorvel {

namespace {

constexpr auto largestHotKeyNumber = std::numeric_limits<std::uint32_t>::max();

} // namespace

MainController::MainController(const Platform& platform, GlobalEventBlocker* blocker, SharedUpdater* updater)
    : platform(platform),
      overlayWindowManager(platform),
      preferencesManager(platform, updater),
      shortcutManager(platform.hotKeys, platform.mainQueue, platform.log),
      layouts(platform.bundle, Settings(platform.userDefaults), platform.log),
      eventBlocker(blocker),
      layoutOverlayMode(modeEnvironment()),
      focusSwitcherMode(modeEnvironment(), modes, [this] { dismissFocusSwitcher(); }),
      moveResizeMode(modeEnvironment(), modes)
{
    layouts.loadLayouts();
    layouts.seedDefaultLayoutsIfNeeded();
    observers.push_back(platform.notificationCenter.observe(notificationNames::shortcutDidChange, noNotificationObject,
                                                            weakly.guard([this] { registerShortcuts(); })));
    registerShortcuts();
}

MainController::~MainController() = default;

ModeEnvironment MainController::modeEnvironment()
{
    return {
        .platform = platform,
        .overlayWindowManager = overlayWindowManager,
        .layoutsManager = layouts,
        .stateManager = state,
        .eventBlocker = eventBlocker,
        .currentScreen = currentScreen,
        .handleAction = [this](Action action, const ActionArguments& arguments) { handleAction(action, arguments); },
    };
}

void MainController::registerShortcuts()
{
    if (shortcutsPaused) {
        platform.log.line("Shortcuts paused; not registering.");
        return;
    }
    const Settings settings(platform.userDefaults);
    const auto activateOverlay = mainShortcut(settings, shortcutKeys::activateOverlay);
    platform.log.line(fmt::format("Registering shortcuts: keyCode={}, modifiers={}", activateOverlay.keyCode,
                                  activateOverlay.modifiers));
    shortcutManager.unregisterAll();
    registerHotKey(shortcutKeys::activateOverlay, activateOverlay, Action::activateOverlay);
    registerHotKey(shortcutKeys::moveResize, mainShortcut(settings, shortcutKeys::moveResize),
                   Action::moveResizeFrontmost);
    registerHotKey(shortcutKeys::focusSwitcher, mainShortcut(settings, shortcutKeys::focusSwitcher),
                   Action::focusSwitcher);
    for (const auto& command : navigationCommands) {
        const auto shortcut = navigationShortcut(settings, command.keys);
        // Without modifiers it works inside the overlay only.
        if (shortcut.modifiers != 0) {
            registerHotKey(command.keys, shortcut, command.action);
        }
    }
}

// Key code 0 stands for a shortcut that was cleared: it must not take the A key from the whole system.
void MainController::registerHotKey(const ShortcutKeys& keys, const Shortcut& shortcut, Action action)
{
    if (shortcut.keyCode == 0) {
        return;
    }
    shortcutManager.registerHotKey(numberInRange(keys.keyCode, shortcut.keyCode, largestHotKeyNumber),
                                   numberInRange(keys.modifiers, shortcut.modifiers, largestHotKeyNumber), action,
                                   weakly.guard([this](Action fired) {
                                       if (fired == Action::activateOverlay) {
                                           platform.log.line("Activate overlay shortcut fired");
                                       }
                                       handleAction(fired, {});
                                   }));
}

void MainController::handleAction(Action action, const ActionArguments& arguments)
{
    switch (action) {
    case Action::cancel:
        exitCurrentMode();
        break;
    case Action::activateOverlay:
        toggleOverlay();
        break;
    case Action::moveClientWindow:
        moveClientWindow(arguments);
        break;
    case Action::nextLayout:
        layouts.selectNextLayout();
        showStepped(arguments);
        break;
    case Action::previousLayout:
        layouts.selectPreviousLayout();
        showStepped(arguments);
        break;
    case Action::jumpToLayout:
        jumpToLayout(arguments);
        break;
    case Action::nextScreen:
    case Action::previousScreen:
        showStepped(arguments);
        break;
    case Action::moveResizeFrontmost:
        if (isLabelling() || layoutOverlayMode.isShowing()) {
            exitCurrentMode();
        }
        moveResizeMode.toggle();
        break;
    case Action::focusSwitcher:
        switchFocus();
        break;
    }
}

void MainController::toggleOverlay()
{
    if (!endMode()) {
        showOverlay(std::nullopt, nullptr);
    }
}

void MainController::switchFocus()
{
    if (!endMode()) {
        focusSwitcherMode.start();
    }
}

// Ends what is up. True if that was letters on the screen, which is all that a hot key of theirs does then.
bool MainController::endMode()
{
    const bool wasLabelling = isLabelling() && !modes.moveResizeElement;
    if (wasLabelling || modes.moveResizeElement || layoutOverlayMode.isShowing()) {
        exitCurrentMode();
    }
    return wasLabelling;
}

void MainController::showStepped(const ActionArguments& arguments)
{
    exitCurrentMode();
    showOverlay(argumentAt<ScreensModel>(arguments, 0), elementAt(arguments, 1));
}

void MainController::jumpToLayout(const ActionArguments& arguments)
{
    const auto id = argumentAt<std::string>(arguments, 0);
    if (id && layouts.selectLayoutWithID(*id)) {
        exitCurrentMode();
        showOverlay(argumentAt<ScreensModel>(arguments, 1), elementAt(arguments, 2));
    }
}

void MainController::moveClientWindow(const ActionArguments& arguments)
{
    const auto frame = argumentAt<WindowModel>(arguments, 0);
    const auto screens = argumentAt<ScreensModel>(arguments, 1);
    const auto element = elementAt(arguments, 2);
    if (frame && screens && element) {
        layoutOverlayMode.placeWindow(*frame, *screens, *element);
    }
}

void MainController::showOverlay(const std::optional<ScreensModel>& screens,
                                 std::shared_ptr<WindowElementModel> element)
{
    if (shortcutsPaused) {
        platform.log.line("Overlay suppressed: shortcuts paused");
        return;
    }
    layoutOverlayMode.showOverlay(screens, std::move(element));
}

void MainController::exitCurrentMode()
{
    overlayWindowManager.hideAll();
    releaseBlocker();
    layoutOverlayMode.leave();
    moveResizeMode.leave();
    modes.eventMonitor.reset();
    if (!overlayWindowManager.isOverlayVisible()) {
        state.currentState = StateManager::States::normal;
    }
    if (isFocusSwitcherLeft()) {
        dismissFocusSwitcher();
    }
}

void MainController::dismissFocusSwitcher()
{
    overlayWindowManager.hideAll();
    releaseBlocker();
    focusSwitcherMode.leave();
    modes.focusSwitcherMouseMonitor.reset();
    for (auto* panels : {&modes.minimizedWindowsPanels, &modes.allWindowsListPanels}) {
        for (const auto& panel : *panels) {
            panel->close();
        }
        panels->clear();
    }
    modes.isMinimizedPanelVisible = false;
    modes.isAllWindowsPanelVisible = false;
    state.currentState = StateManager::States::normal;
}

// True while the layout overlay or the focus switcher is up.
bool MainController::isLabelling() const
{
    return state.currentState == StateManager::States::overlayOn;
}

bool MainController::isFocusSwitcherLeft() const
{
    return modes.focusSwitcherMouseMonitor.isActive() || !modes.minimizedWindowsPanels.empty() ||
           !modes.allWindowsListPanels.empty();
}

void MainController::releaseBlocker()
{
    if (eventBlocker != nullptr) {
        eventBlocker->clearBlockedKeys();
    }
}

void MainController::openPreferences()
{
    shortcutsPaused = true;
    shortcutManager.unregisterAll();
    releaseBlocker();
    preferencesManager.show();
    observePreferencesClosing();
}

// The window announces its closing in two ways, and each of them is enough. Observers of earlier openings stay: hot
// keys that are resumed several times in a row are registered from scratch each time.
void MainController::observePreferencesClosing()
{
    const auto resumeWith = [this](std::string_view line) {
        return weakly.guard([this, line] {
            platform.log.line(line);
            resumeShortcuts();
        });
    };
    observers.push_back(
        platform.notificationCenter.observe(notificationNames::preferencesWillClose, noNotificationObject,
                                            resumeWith("Preferences close notification received; resuming shortcuts")));
    if (const auto window = preferencesManager.windowObject()) {
        observers.push_back(
            platform.notificationCenter.observe(notificationNames::windowWillClose, *window,
                                                resumeWith("Preferences window will close; resuming shortcuts")));
    } else {
        platform.log.line("Preferences window not available to observe; relying on notification to resume shortcuts");
    }
}

void MainController::resumeShortcuts()
{
    shortcutsPaused = false;
    registerShortcuts();
}

} // namespace quorvel
