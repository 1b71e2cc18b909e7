#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <utility>
#include <vector>

#include <xcb/xcb.h>

#include "base/Subscription.h"
#include "base/WeakGuard.h"
#include "platform/x11/windows/Placement.h"

namespace quorvel {
class MainQueue;
}

namespace quorvel::x11 {

class ClientWindows;
class Connection;
class Precedence;
class WindowManagerBarrier;

// Moves windows and watches over the result. All that is written to a window in one turn of the loop becomes one
// request. Nothing waits: what the window manager does comes as events.
class Placements {
public:
    Placements(Connection& connection, MainQueue& mainQueue, Precedence& precedence, ClientWindows& windows,
               WindowManager& windowManager, WindowManagerBarrier& barrier);

    // Writing what the window is being brought to already does not disturb it.
    void setOrigin(xcb_window_t window, const WindowSnapshot& snapshot, RootPoint origin);
    void setSize(xcb_window_t window, const WindowSnapshot& snapshot, Size size);

    // Where a person may take the window to be. What was written counts until the window manager has dealt with it, so
    // that who reads and writes again, faster than it answers, goes on from there.
    RootRect outer(xcb_window_t window, const WindowSnapshot& snapshot) const;

    // Calls back in the moment in which `outer` may tell something else without an event of the window; once only.
    void whenOuterMayChange(std::function<void(xcb_window_t window)> callback) { outerMayChange = std::move(callback); }

    // Whether some window is still on its way or being watched over.
    bool isBusy() const { return !writes.empty() || !running.empty(); }

private:
    struct Written {
        PlacementTarget target;
        WindowSnapshot snapshot;
        Subscription precedence;
    };

    struct Running {
        Placement placement;
        Subscription selection;
        Subscription precedence;           // until the window manager has dealt with a request
        std::uint64_t number = 0;          // tells this placement from later ones of the same window
        std::uint64_t request = 0;         // tells its last request from earlier ones
        std::uint64_t activity = 0;        // tells its last request, answer or event from earlier ones
        WindowManager::Identity asked = 0; // the window manager that the last request went to
        bool isAnswered = false;           // it has dealt with that request
        bool isReconsiderationDue = false;

        bool isOpen() const { return !isAnswered || !placement.hasAsked(); }
    };

    Written& written(xcb_window_t window, const WindowSnapshot& snapshot);
    void flush();
    void start(xcb_window_t window, Written& written);
    void handlePropertyChange(const xcb_property_notify_event_t& event);
    void noteActivity(xcb_window_t window);
    void noteEvent(xcb_window_t window);
    void awaitAnswer(xcb_window_t window, Running& entry);
    void noteAnswer(xcb_window_t window, Running& entry);
    void end(std::map<xcb_window_t, Running>::iterator entry);
    void reconsiderSoon(xcb_window_t window);
    void reconsider(xcb_window_t window);
    void settle(xcb_window_t window, std::uint64_t activity);
    void perform(xcb_window_t window, Running& entry, const Placement::Step& step);
    Anchor knownAnchor();

    Connection& connection;
    MainQueue& mainQueue;
    Precedence& precedence;
    ClientWindows& windows;
    WindowManager& windowManager;
    WindowManagerBarrier& barrier;
    std::map<xcb_window_t, Written> writes;
    std::map<xcb_window_t, Running> running;
    std::uint64_t lastNumber = 0;
    WindowManager::Identity clientAnchoringManager = 0; // the window manager known to place clients, not frames
    std::function<void(xcb_window_t)> outerMayChange = [](xcb_window_t) {};
    std::vector<Subscription> subscriptions;
    WeakGuard weakGuard;
};

} // namespace quorvel::x11
