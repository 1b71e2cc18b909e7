#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "app/QuorvelApp.h"
#include "base/Subscription.h"
#include "main/FeedUpdates.h"
#include "main/X11Display.h"
#include "platform/LocalNotificationCenter.h"
#include "platform/Platform.h"
#include "platform/StandardOutputLog.h"
#include "platform/x11/GlibMainLoop.h"
#include "platform/x11/desktop/DesktopStyles.h"
#include "platform/x11/desktop/ToolkitModule.h"
#include "platform/x11/desktop/X11Alerts.h"
#include "platform/x11/desktop/X11Bundle.h"
#include "platform/x11/desktop/X11Dates.h"
#include "platform/x11/desktop/X11LoginItem.h"
#include "platform/x11/desktop/X11Permissions.h"
#include "platform/x11/desktop/X11PreferencesUi.h"
#include "platform/x11/desktop/X11StatusBar.h"
#include "platform/x11/desktop/X11SystemColors.h"
#include "platform/x11/keys/KeyAdapters.h"
#include "platform/x11/overlays/X11OverlayWindows.h"
#include "platform/x11/painting/TextLayouts.h"
#include "platform/x11/painting/X11TextMetrics.h"
#include "platform/x11/settings/PlistUserDefaults.h"
#include "platform/x11/settings/SettingsWatcher.h"
#include "platform/x11/windows/WindowAdapters.h"

namespace quorvel {

// The program for X11 desktops: every adapter, and the portable program over them.
class X11Program {
public:
    X11Program(x11::GlibMainLoop& loop, X11Display display);
    X11Program(const X11Program&) = delete;
    X11Program& operator=(const X11Program&) = delete;
    ~X11Program();

    // Runs until somebody ends the program: its menu, a signal, the X server, or another Quorvel that takes over.
    // Answers the exit status.
    int run();

private:
    void quit() { loop.quit(0); }
    std::vector<Subscription> subscribeToEndingSignals();
    void settingsMayHaveChanged();
    void windowManagerHasChanged();
    x11::ToolkitHost toolkitHost();

    x11::GlibMainLoop& loop;
    X11Display display;

    StandardOutputLog log;
    x11::PlistUserDefaults userDefaults;
    LocalNotificationCenter notificationCenter;
    x11::X11Bundle bundle;
    x11::X11Dates dates;
    x11::WindowAdapters windows;
    x11::KeyAdapters keys;
    x11::TextLayouts textLayouts;
    x11::X11TextMetrics textMetrics;
    x11::X11OverlayWindows overlayWindows;
    x11::X11SystemColors systemColors;
    x11::X11Permissions permissions;
    x11::DesktopStyles desktopStyles;
    x11::ToolkitModule toolkit;
    x11::X11StatusBar statusBar;
    x11::X11Alerts alerts;
    x11::X11LoginItem loginItem;
    std::unique_ptr<FeedUpdates> feedUpdates; // null where this build has no feed
    x11::X11PreferencesUi preferencesUi;

    Platform platform;
    Subscription hotKeyNews;                 // before the program takes any
    std::vector<Subscription> endingSignals; // first, so that a program that is still starting ends in good order, too
    QuorvelApp app;
    x11::SettingsWatcher settingsWatcher;
    Subscription windowManagerChanges;
};

} // namespace quorvel
