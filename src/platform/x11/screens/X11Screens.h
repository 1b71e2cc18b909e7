#pragma once

#include <vector>

#include <xcb/xcb.h>

#include "base/Subscription.h"
#include "base/WeakGuard.h"
#include "platform/Screens.h"
#include "platform/x11/RootGeometry.h"
#include "platform/x11/screens/MonitorLayout.h"
#include "platform/x11/screens/StrutReader.h"

namespace quorvel {
class MainQueue;
}

namespace quorvel::x11 {

class Connection;
class RootProperties;

// The monitors of RandR. They are read again a moment after monitors, panels or desktops change, so that whoever asks
// finds them ready; who asks within this moment waits for them.
class X11Screens : public Screens {
public:
    X11Screens(Connection& connection, MainQueue& mainQueue, RootProperties& rootProperties);

    std::vector<Screen> screens() override;
    std::optional<Screen> mainScreen() override;

    // The way between root, accessibility and screen coordinates; holds until monitors change.
    const ScreenCoordinates& coordinates();

    // What the screens are made of, as of now.
    std::vector<MonitorWithWorkArea> monitors();

private:
    enum class Presence { absent, there };

    const ScreenLayout& currentLayout();
    ScreenLayout readLayout();
    std::vector<Monitor> readMonitors() const;
    std::vector<RootRect> readWorkAreas(std::size_t monitorCount);
    RootPoint focusPoint();
    void watchRoot();
    void watchPanels();
    void watchFrames(Presence i3);
    void watchMonitors();
    void invalidate();
    void handleConfigure(const xcb_configure_notify_event_t& event);
    void handlePropertyChange(const xcb_property_notify_event_t& event);

    Connection& connection;
    MainQueue& mainQueue;
    RootProperties& rootProperties;
    StrutReader struts;
    xcb_atom_t i3Socket; // a property that i3 sets on the root
    Subscription frameEvents;
    Size rootSize;
    std::optional<ScreenLayout> layout;
    xcb_atom_t gtkWorkareas = XCB_ATOM_NONE; // of the desktop that was current when the layout was read
    bool isRefreshDue = false;
    std::vector<Subscription> subscriptions;
    WeakGuard weakGuard;
};

} // namespace quorvel::x11
