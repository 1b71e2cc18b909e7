#pragma once

#include <functional>

#include "base/Keys.h"
#include "base/Subscription.h"

namespace quorvel {

// What becomes of an event that a monitor has seen.
enum class EventHandling { pass, swallow };

// Watching events that go to applications. Handlers run from the main loop until the token goes.
class EventMonitors {
public:
    EventMonitors() = default;
    EventMonitors(const EventMonitors&) = delete;
    EventMonitors& operator=(const EventMonitors&) = delete;
    virtual ~EventMonitors() = default;

    // A press of any mouse button over any other application.
    virtual Subscription addGlobalMouseDownMonitor(std::function<void()> handler) = 0;

    // A key-down that goes to a window of this program. One that is swallowed reaches neither the window nor a later
    // monitor.
    //
    // X11: an overlay panel gets its keys all the same.
    virtual Subscription addLocalKeyDownMonitor(std::function<EventHandling(const KeyEvent&)> handler) = 0;
};

} // namespace quorvel
