#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include <xcb/xcb.h>

#include "base/Signal.h"
#include "base/Subscription.h"
#include "base/WeakGuard.h"

namespace quorvel {
class MainQueue;
}

namespace quorvel::x11 {

class Connection;
class RootProperties;

// The window manager that runs at present, and what can be asked of it. Requests are sent at once and answered by
// nothing but what the window manager then does.
class WindowManager {
public:
    WindowManager(Connection& connection, MainQueue& mainQueue, RootProperties& rootProperties);

    // A number that no other has, nor the same one started anew; 0 where none runs.
    using Identity = std::uint64_t;
    Identity identity();

    // Tells from the main loop when identity() is no longer what it was: the window manager has gone, or one has come.
    Subscription observe(std::function<void()> changed);

    bool supports(xcb_atom_t feature);

    // Gravity is that of the frame's upper left corner: the size is the client's, the position the frame's. What is
    // absent stays.
    struct Geometry {
        std::optional<std::int32_t> x;
        std::optional<std::int32_t> y;
        std::optional<std::int32_t> width;
        std::optional<std::int32_t> height;

        bool operator==(const Geometry&) const = default;
    };
    void moveAndResize(xcb_window_t window, const Geometry& geometry);

    void leaveMaximizedAndFullscreen(xcb_window_t window);
    void minimize(xcb_window_t window);
    void showDesktop(std::uint32_t desktop);

    // Raises the window, gives it the keyboard and shows it if it is minimized, on the current desktop.
    void activate(xcb_window_t window);

private:
    void follow();
    void lookSoon();
    void tellOfChange();
    void send(xcb_window_t window, xcb_atom_t type, const std::array<std::uint32_t, 5>& data);

    Connection& connection;
    MainQueue& mainQueue;
    RootProperties& rootProperties;
    xcb_window_t checkWindow = XCB_NONE;
    bool isGone = true;
    bool isAnnounced = true; // perhaps a different one, since the last look
    Identity latest = 0;
    Identity told = 0; // what observers know
    bool isLookDue = false;
    Signal<> changes;
    Subscription checkWindowSelection;
    std::vector<Subscription> subscriptions;
    WeakGuard weakGuard;
};

} // namespace quorvel::x11
