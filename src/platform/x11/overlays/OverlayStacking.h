#pragma once

#include <optional>
#include <vector>

#include <xcb/xcb.h>

#include "base/Subscription.h"
#include "base/WeakGuard.h"

namespace quorvel {
class MainQueue;
}

namespace quorvel::x11 {

class Connection;

// The order of the shown overlay windows: by level, then by when they were ordered front; in front of the windows of
// other programs. Window managers know nothing of override-redirect windows and may raise others above them.
class OverlayStacking {
public:
    OverlayStacking(Connection& connection, MainQueue& mainQueue) : connection(connection), mainQueue(mainQueue) {}

    enum class Age { newborn, old }; // newborn: made a moment ago and thus in front of everything

    // Puts the window in front of the others of its level.
    void raise(xcb_window_t window, int level, Age age);

    void remove(xcb_window_t window);

private:
    struct Entry {
        xcb_window_t window;
        int level;
    };

    bool contains(xcb_window_t window) const;
    bool isViewable(xcb_window_t window) const;
    void reviewWatchSoon();
    void reviewWatch();
    void watchOthers();
    bool isBehindOthers() const;
    void handleOther();
    void raiseAll();

    Connection& connection;
    MainQueue& mainQueue;
    std::vector<Entry> backToFront;
    std::vector<Subscription> othersEvents; // while there are windows to keep in front
    bool isReviewScheduled = false;
    bool isRaiseScheduled = false;
    int raisesLeft = 0;
    WeakGuard weakGuard;
};

} // namespace quorvel::x11
