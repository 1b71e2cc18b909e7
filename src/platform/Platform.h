#pragma once

namespace quorvel {

class Accessibility;
class Alerts;
class Bundle;
class Dates;
class EventMonitors;
class EventTaps;
class HotKeys;
class KeyboardLayout;
class Log;
class LoginItem;
class MainQueue;
class NotificationCenter;
class OverlayWindows;
class Permissions;
class PreferencesUi;
class Screens;
class StatusBar;
class SystemColors;
class TextMetrics;
class Updater;
class UserDefaults;
class WindowList;
class Workspace;

// Everything the portable program needs of the machine, built once by the composition root and handed down. All of it
// outlives whoever holds this.
struct Platform {
    Log& log;
    MainQueue& mainQueue;
    UserDefaults& userDefaults;
    NotificationCenter& notificationCenter;
    Bundle& bundle;
    Dates& dates;
    Accessibility& accessibility;
    HotKeys& hotKeys;
    EventTaps& eventTaps;
    WindowList& windowList;
    Workspace& workspace;
    Screens& screens;
    KeyboardLayout& keyboardLayout;
    EventMonitors& eventMonitors;
    OverlayWindows& overlayWindows;
    TextMetrics& textMetrics;
    SystemColors& systemColors;
    StatusBar& statusBar;
    Permissions& permissions;
    Alerts& alerts;
    PreferencesUi* preferencesUi = nullptr; // null where this build has no preferences window
    Updater* updater = nullptr;             // null where this build does not update itself
    LoginItem* loginItem = nullptr;         // null where sessions start no programs
    bool focusesExactWindow = false;        // what the setting "fsFocusExactWindow" means while it is absent
};

} // namespace quorvel
