#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include <xcb/xcb.h>

#include "base/Subscription.h"
#include "base/WeakGuard.h"
#include "platform/x11/RootGeometry.h"

namespace quorvel {
class MainQueue;
}

namespace quorvel::x11 {

class ClientWindows;
class Connection;
class Placements;

enum class WindowChange { moved, resized, destroyed };

// Tells of changes to windows as people see them: once for all that happened in one turn of the loop, and only of what
// is different in the end.
class WindowWatcher {
public:
    using Listener = std::function<void(WindowChange)>;

    WindowWatcher(Connection& connection, MainQueue& mainQueue, ClientWindows& windows, Placements& placements);

    // Calls the listener from the main loop until the token goes; after `destroyed` no more. A window that its program
    // withdraws counts as destroyed.
    Subscription watch(xcb_window_t window, Listener listener);

private:
    struct Watched {
        RootRect outer;
        Subscription following;
        std::vector<std::shared_ptr<const Listener>> listeners;
    };

    void noteChange(xcb_window_t window);
    void review();
    void review(xcb_window_t window);
    void tell(xcb_window_t window, WindowChange change);
    void remove(xcb_window_t window, const std::shared_ptr<const Listener>& listener);

    Connection& connection;
    MainQueue& mainQueue;
    ClientWindows& windows;
    Placements& placements;
    std::map<xcb_window_t, Watched> watched;
    std::set<xcb_window_t> changed;
    std::vector<Subscription> subscriptions;
    WeakGuard weakGuard;
};

} // namespace quorvel::x11
