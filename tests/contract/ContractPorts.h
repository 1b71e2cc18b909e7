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

namespace contract {

class SessionVerbs;

// The ports under test. One may be null only where its suite is not linked.
struct ContractPorts {
    Log* log = nullptr;
    MainQueue* mainQueue = nullptr;
    UserDefaults* userDefaults = nullptr;
    NotificationCenter* notificationCenter = nullptr;
    Bundle* bundle = nullptr;
    Dates* dates = nullptr;
    Accessibility* accessibility = nullptr;
    HotKeys* hotKeys = nullptr;
    EventTaps* eventTaps = nullptr;
    WindowList* windowList = nullptr;
    Workspace* workspace = nullptr;
    Screens* screens = nullptr;
    KeyboardLayout* keyboardLayout = nullptr;
    EventMonitors* eventMonitors = nullptr;
    OverlayWindows* overlayWindows = nullptr;
    TextMetrics* textMetrics = nullptr;
    SystemColors* systemColors = nullptr;
    StatusBar* statusBar = nullptr;
    Permissions* permissions = nullptr;
    Alerts* alerts = nullptr;
    PreferencesUi* preferencesUi = nullptr;
    LoginItem* loginItem = nullptr;
    Updater* updater = nullptr;
    SessionVerbs* session = nullptr; // no port, but what the suites of shell and session need
};

} // namespace contract
} // namespace quorvel
