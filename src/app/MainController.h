#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "app/ActionArguments.h"
#include "app/FocusSwitcherMode.h"
#include "app/LayoutOverlayMode.h"
#include "app/ModeState.h"
#include "app/MoveResizeMode.h"
#include "app/StateManager.h"
#include "base/Subscription.h"
#include "base/WeakGuard.h"
#include "layouts/GlobalShortcutManager.h"
#include "layouts/LayoutsManager.h"
#include "layouts/OverlayWindowManager.h"
#include "preferences/PreferencesManager.h"
#include "settings/SettingsKeys.h"
#include "system/CurrentScreen.h"

namespace quorvel {

struct Platform;
struct Shortcut;
struct ShortcutKeys;
class GlobalEventBlocker;
class SharedUpdater;

// The hub of the running program: registers the global hot keys, turns them and the keys of modes into actions, drives
// the modes, and gives the hot keys up while the preferences are open. Main thread only.
class MainController {
public:
    static constexpr std::string_view activateOverlayKeyCodeKey = settingsKeys::activateOverlayKeyCode;
    static constexpr std::string_view activateOverlayModifiersKey = settingsKeys::activateOverlayModifiers;
    static constexpr std::string_view moveResizeKeyCodeKey = settingsKeys::moveResizeKeyCode;
    static constexpr std::string_view moveResizeModifiersKey = settingsKeys::moveResizeModifiers;
    static constexpr std::string_view focusSwitcherKeyCodeKey = settingsKeys::focusSwitcherKeyCode;
    static constexpr std::string_view focusSwitcherModifiersKey = settingsKeys::focusSwitcherModifiers;

    // Loads the catalogue of layouts and registers the hot keys: they work from here on. `platform`, `blocker`, which
    // is null where keys cannot be blocked, and `updater`, null where there is none, outlive the controller.
    MainController(const Platform& platform, GlobalEventBlocker* blocker, SharedUpdater* updater = nullptr);
    MainController(const MainController&) = delete;
    MainController& operator=(const MainController&) = delete;
    ~MainController();

    // Registers the global hot keys as the settings have them now, in place of those registered before; not while the
    // preferences are open. A stored key code or mask out of range is a fatal error.
    void registerShortcuts();

    // Carries an action out. What it is done with stands in `arguments`:
    //
    //   moveClientWindow            frame (WindowModel), screens, element: all of them, or nothing happens
    //   nextLayout, previousLayout  screens, element: either may be missing
    //   jumpToLayout                layout id (text), screens, element: the id must be that of a selected layout
    //   nextScreen, previousScreen  screens, which are at the new screen already, element: either may be missing
    void handleAction(Action action, const ActionArguments& arguments);

    // See LayoutOverlayMode; does nothing while the preferences are open.
    void showOverlay(const std::optional<ScreensModel>& screens, std::shared_ptr<WindowElementModel> element);

    // Ends whatever mode is on.
    void exitCurrentMode();

    // Ends the focus switcher.
    void dismissFocusSwitcher();

    // Gives the hot keys up, shows the preferences and takes the hot keys back when they close.
    void openPreferences();

    StateManager& stateManager() { return state; }
    LayoutsManager& layoutsManager() { return layouts; }
    ModeState& modeState() { return modes; }

private:
    void registerHotKey(const ShortcutKeys& keys, const Shortcut& shortcut, Action action);
    void observePreferencesClosing();
    void resumeShortcuts();

    ModeEnvironment modeEnvironment();
    void toggleOverlay();
    void switchFocus();
    bool endMode();
    void showStepped(const ActionArguments& arguments);
    void jumpToLayout(const ActionArguments& arguments);
    void moveClientWindow(const ActionArguments& arguments);

    bool isLabelling() const;
    bool isFocusSwitcherLeft() const;
    void releaseBlocker();

    const Platform& platform;
    bool shortcutsPaused = false;
    OverlayWindowManager overlayWindowManager;
    PreferencesManager preferencesManager;
    GlobalShortcutManager shortcutManager;
    LayoutsManager layouts;
    StateManager state;
    GlobalEventBlocker* eventBlocker;
    ModeState modes;
    std::shared_ptr<CurrentScreen> currentScreen = std::make_shared<CurrentScreen>();
    LayoutOverlayMode layoutOverlayMode;
    FocusSwitcherMode focusSwitcherMode;
    MoveResizeMode moveResizeMode;
    std::vector<Subscription> observers; // of notifications; they stay for good
    WeakGuard weakly;
};

} // namespace quorvel
