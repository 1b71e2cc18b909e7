#pragma once

#include <memory>
#include <vector>

#include "app/QuorvelApp.h"
#include "base/Subscription.h"
#include "platform/Platform.h"
#include "platform/StandardOutputLog.h"
#include "platform/macos/desktop/FocusReturn.h"
#include "platform/macos/desktop/MacAlerts.h"
#include "platform/macos/desktop/MacBundle.h"
#include "platform/macos/desktop/MacDates.h"
#include "platform/macos/desktop/MacLoginItem.h"
#include "platform/macos/desktop/MacMainQueue.h"
#include "platform/macos/desktop/MacNotificationCenter.h"
#include "platform/macos/desktop/MacPermissions.h"
#include "platform/macos/desktop/MacScreens.h"
#include "platform/macos/desktop/MacStatusBar.h"
#include "platform/macos/desktop/MacSystemColors.h"
#include "platform/macos/desktop/MacUpdater.h"
#include "platform/macos/desktop/MacUserDefaults.h"
#include "platform/macos/desktop/SessionReturns.h"
#include "platform/macos/keys/MacEventMonitors.h"
#include "platform/macos/keys/MacEventTaps.h"
#include "platform/macos/keys/MacHotKeys.h"
#include "platform/macos/keys/MacKeyboardLayout.h"
#include "platform/macos/overlays/MacOverlayWindows.h"
#include "platform/macos/overlays/MacTextMetrics.h"
#include "platform/macos/preferences/MacPreferencesUi.h"
#include "platform/macos/windows/MacAccessibility.h"
#include "platform/macos/windows/MacWindowList.h"
#include "platform/macos/windows/MacWorkspace.h"
#include "system/InsistentWorkspace.h"
#include "system/VigilantAccessibility.h"

namespace quorvel {

// The program for macOS: every adapter, and the portable program over them. Hot keys work from its construction on.
class MacProgram {
public:
    // Resources come from the bundle.
    explicit MacProgram(NSBundle* resources);
    MacProgram(const MacProgram&) = delete;
    MacProgram& operator=(const MacProgram&) = delete;
    ~MacProgram();

    void applicationDidFinishLaunching();
    void applicationWillTerminate();

private:
    StandardOutputLog log;
    macos::MacMainQueue mainQueue;
    macos::MacUserDefaults userDefaults{mainQueue};
    macos::MacNotificationCenter notificationCenter{mainQueue};
    macos::MacBundle bundle;
    macos::MacDates dates;
    macos::MacAccessibility macAccessibility{mainQueue};
    macos::MacHotKeys hotKeys;
    macos::MacEventTaps eventTaps;
    macos::MacWindowList windowList;
    macos::MacWorkspace macWorkspace{mainQueue};
    macos::MacScreens screens;
    macos::MacKeyboardLayout keyboardLayout;
    macos::MacEventMonitors eventMonitors;
    macos::MacTextMetrics textMetrics;
    macos::MacOverlayWindows overlayWindows;
    macos::MacSystemColors systemColors;
    macos::MacPermissions permissions{macWorkspace};
    macos::MacStatusBar statusBar;
    macos::MacAlerts alerts;
    VigilantAccessibility accessibility{{macAccessibility, permissions, mainQueue, macWorkspace, alerts, log}};
    InsistentWorkspace workspace{{macWorkspace, accessibility, mainQueue}};
    macos::FocusReturn focusReturn{workspace, mainQueue};
    macos::MacLoginItem loginItem;
    std::unique_ptr<macos::MacUpdater> updater = macos::MacUpdater::make(); // null in a bundle without the framework
    macos::MacPreferencesUi preferencesUi{mainQueue};

    Platform platform;
    QuorvelApp app;
    std::vector<Subscription> sessionReturns;
    Subscription foreignChanges;
};

} // namespace quorvel
