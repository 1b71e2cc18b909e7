#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/Geometry.h"
#include "base/Keys.h"
#include "platform/Platform.h"
#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedAccessibility.h"
#include "platform/simulated/SimulatedAlerts.h"
#include "platform/simulated/SimulatedBundle.h"
#include "platform/simulated/SimulatedDates.h"
#include "platform/simulated/SimulatedDesktopProbe.h"
#include "platform/simulated/SimulatedEventMonitors.h"
#include "platform/simulated/SimulatedEventTaps.h"
#include "platform/simulated/SimulatedHotKeys.h"
#include "platform/simulated/SimulatedHttpClient.h"
#include "platform/simulated/SimulatedKeyboard.h"
#include "platform/simulated/SimulatedKeyboardLayout.h"
#include "platform/simulated/SimulatedLog.h"
#include "platform/simulated/SimulatedLoginItem.h"
#include "platform/simulated/SimulatedMainQueue.h"
#include "platform/simulated/SimulatedNotificationCenter.h"
#include "platform/simulated/SimulatedOverlayWindows.h"
#include "platform/simulated/SimulatedPermissions.h"
#include "platform/simulated/SimulatedPreferencesUi.h"
#include "platform/simulated/SimulatedScreens.h"
#include "platform/simulated/SimulatedStatusBar.h"
#include "platform/simulated/SimulatedSystemColors.h"
#include "platform/simulated/SimulatedTextMetrics.h"
#include "platform/simulated/SimulatedUpdater.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "platform/simulated/SimulatedWindowList.h"
#include "platform/simulated/SimulatedWindowServer.h"
#include "platform/simulated/SimulatedWorkspace.h"

namespace quorvel {

// A desktop in memory, with the verbs of the person in front of it. It behaves like the real ones: events arrive later,
// when the main queue is drained, and only where something changed. To let it misbehave, see the classes of its parts;
// to let something happen in the midst of a call, see Journal::duringNext().
//
// Applications and windows live as long as the desktop, as records once they are terminated or closed. The program
// under it must go first.
class SimulatedDesktop {
public:
    SimulatedDesktop();
    SimulatedDesktop(const SimulatedDesktop&) = delete;
    SimulatedDesktop& operator=(const SimulatedDesktop&) = delete;
    ~SimulatedDesktop();

    // Every port of it.
    Platform platform();

    // Applications. A launched one comes to the front; its process is 500 or the next one that is free.
    SimulatedApplication& launch(std::string name);
    SimulatedApplication& launch(RunningApplication description) { return windowServer.launch(std::move(description)); }
    void terminate(SimulatedApplication& application) { windowServer.terminate(application); }
    void activate(const SimulatedApplication& application) { windowServer.activate(application.process()); }
    void leaveNobodyInFront() { windowServer.leaveNobodyInFront(); }

    // Windows. A new one comes to the front and has the keyboard.
    SimulatedWindow& openWindow(SimulatedApplication& application, std::string title, const AxRect& frame);
    void closeWindow(SimulatedWindow& window) { windowServer.close(window); }
    void moveWindow(SimulatedWindow& window, const AxRect& frame);
    void focus(SimulatedWindow& window);
    void minimize(SimulatedWindow& window) { windowServer.minimize(window); }
    void restore(SimulatedWindow& window) { windowServer.restore(window); }

    // Keys, with eventFlags. Without `characters` the keyboard layout tells what a key types.
    // press() is a whole keystroke; hold() leaves the key down, for repeatKey() and releaseKey().
    void press(KeyCode keyCode, std::uint64_t flags = 0, std::optional<std::string> characters = std::nullopt);
    void hold(KeyCode keyCode, std::uint64_t flags = 0, std::optional<std::string> characters = std::nullopt);
    void repeatKey(KeyCode keyCode) { keyboard.repeat(keyCode); }
    void releaseKey(KeyCode keyCode) { keyboard.release(keyCode); }

    // Presses the mouse button: brings the window there to the front and is seen by the monitors, except over a window
    // of this program that takes mouse events.
    void clickMouse(AxPoint point);

    // Time and the main queue.
    void turn() { mainQueue.turn(); }
    void drain() { mainQueue.drain(); }
    void advance(double seconds) { mainQueue.advance(SimulatedMainQueue::Seconds(seconds)); }

    // The name under which accessibility knows the window.
    AxElementRef element(const SimulatedWindow& window) const { return accessibility.elementOf(window); }

    // The parts. Each port has the verbs of its own misbehaviour.
    Journal journal;
    SimulatedMainQueue mainQueue{journal};
    SimulatedWindowServer windowServer;
    SimulatedLog log{journal};
    SimulatedUserDefaults userDefaults{journal, mainQueue};
    SimulatedNotificationCenter notificationCenter{journal, mainQueue};
    SimulatedBundle bundle{journal};
    SimulatedDates dates;
    SimulatedPermissions permissions{journal};
    SimulatedAccessibility accessibility{journal, mainQueue, permissions, windowServer};
    SimulatedHotKeys hotKeys{journal, mainQueue};
    SimulatedDesktopProbe desktopProbe{hotKeys};
    SimulatedEventTaps eventTaps{journal, mainQueue, permissions};
    SimulatedScreens screens{journal, windowServer};
    SimulatedOverlayWindows overlayWindows{journal, windowServer};
    SimulatedWindowList windowList{journal, windowServer, overlayWindows, screens};
    SimulatedWorkspace workspace{journal, mainQueue, windowServer};
    SimulatedKeyboardLayout keyboardLayout{journal};
    SimulatedEventMonitors eventMonitors{journal};
    SimulatedTextMetrics textMetrics{journal};
    SimulatedSystemColors systemColors;
    SimulatedStatusBar statusBar{journal, mainQueue};
    SimulatedAlerts alerts{journal, mainQueue};
    SimulatedPreferencesUi preferencesUi{journal, mainQueue, notificationCenter, windowServer};
    SimulatedUpdater updater{journal};
    SimulatedHttpClient httpClient{journal, mainQueue};
    SimulatedLoginItem loginItem{journal};
    SimulatedKeyboard keyboard;

private:
    ProcessId nextProcess = 500;
};

} // namespace quorvel
