#pragma once

#include <functional>

#include "base/Keys.h"
#include "base/Subscription.h"

namespace quorvel {

// Watching events that go to applications, without a way to change them. Handlers run from the main loop until the
// token goes.
class EventMonitors {
public:
    EventMonitors() = default;
    EventMonitors(const EventMonitors&) = delete;
    EventMonitors& operator=(const EventMonitors&) = delete;
    virtual ~EventMonitors() = default;

    // A press of any mouse button over any other application.
    virtual Subscription addGlobalMouseDownMonitor(std::function<void()> handler) = 0;

    // A key-down that goes to a window of this program.
    virtual Subscription addLocalKeyDownMonitor(std::function<void(const KeyEvent&)> handler) = 0;
};

} // namespace quorvel
