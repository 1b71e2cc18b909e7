#pragma once

#include "platform/simulated/SimulatedDesktop.h"
#include "tests/faults/ports/FaultyAccessibility.h"
#include "tests/faults/ports/FaultyAlerts.h"
#include "tests/faults/ports/FaultyBundle.h"
#include "tests/faults/ports/FaultyEventMonitors.h"
#include "tests/faults/ports/FaultyEventTaps.h"
#include "tests/faults/ports/FaultyHotKeys.h"
#include "tests/faults/ports/FaultyHttpClient.h"
#include "tests/faults/ports/FaultyKeyboardLayout.h"
#include "tests/faults/ports/FaultyLog.h"
#include "tests/faults/ports/FaultyLoginItem.h"
#include "tests/faults/ports/FaultyMainQueue.h"
#include "tests/faults/ports/FaultyNotificationCenter.h"
#include "tests/faults/ports/FaultyOverlayWindows.h"
#include "tests/faults/ports/FaultyPermissions.h"
#include "tests/faults/ports/FaultyPreferencesUi.h"
#include "tests/faults/ports/FaultyScreens.h"
#include "tests/faults/ports/FaultyStatusBar.h"
#include "tests/faults/ports/FaultyTextMetrics.h"
#include "tests/faults/ports/FaultyUserDefaults.h"
#include "tests/faults/ports/FaultyWindowList.h"
#include "tests/faults/ports/FaultyWorkspace.h"

namespace quorvel {

// The ports of a simulated desktop, each of whose calls may be made to fail. What cannot fail goes through as it is:
// dates, colours, names, and the making of windows.
class FaultyDesktop {
public:
    FaultyDesktop(SimulatedDesktop& desktop, PortFaults& faults) : desktop(desktop), faults(faults) {}

    Platform platform()
    {
        auto platform = desktop.platform();
        return {.log = log,
                .mainQueue = mainQueue,
                .userDefaults = userDefaults,
                .notificationCenter = notificationCenter,
                .bundle = bundle,
                .dates = platform.dates,
                .accessibility = accessibility,
                .hotKeys = hotKeys,
                .eventTaps = eventTaps,
                .windowList = windowList,
                .workspace = workspace,
                .screens = screens,
                .keyboardLayout = keyboardLayout,
                .eventMonitors = eventMonitors,
                .overlayWindows = overlayWindows,
                .textMetrics = textMetrics,
                .systemColors = platform.systemColors,
                .statusBar = statusBar,
                .permissions = permissions,
                .alerts = alerts,
                .preferencesUi = &preferencesUi,
                .updater = platform.updater,
                .loginItem = &loginItem};
    }

private:
    SimulatedDesktop& desktop;
    PortFaults& faults;

public:
    FaultyLog log{desktop.log, faults};
    FaultyMainQueue mainQueue{desktop.mainQueue, faults};
    FaultyUserDefaults userDefaults{desktop.userDefaults, faults};
    FaultyNotificationCenter notificationCenter{desktop.notificationCenter, faults};
    FaultyBundle bundle{desktop.bundle, faults};
    FaultyAccessibility accessibility{desktop.accessibility, faults};
    FaultyHotKeys hotKeys{desktop.hotKeys, faults};
    FaultyEventTaps eventTaps{desktop.eventTaps, faults};
    FaultyWindowList windowList{desktop.windowList, faults};
    FaultyWorkspace workspace{desktop.workspace, faults};
    FaultyScreens screens{desktop.screens, faults};
    FaultyKeyboardLayout keyboardLayout{desktop.keyboardLayout, faults};
    FaultyEventMonitors eventMonitors{desktop.eventMonitors, faults};
    FaultyOverlayWindows overlayWindows{desktop.overlayWindows, faults};
    FaultyTextMetrics textMetrics{desktop.textMetrics, faults};
    FaultyStatusBar statusBar{desktop.statusBar, faults};
    FaultyPermissions permissions{desktop.permissions, faults};
    FaultyAlerts alerts{desktop.alerts, faults};
    FaultyPreferencesUi preferencesUi{desktop.preferencesUi, faults};
    FaultyHttpClient httpClient{desktop.httpClient, faults};
    FaultyLoginItem loginItem{desktop.loginItem, faults};
};

} // namespace quorvel
