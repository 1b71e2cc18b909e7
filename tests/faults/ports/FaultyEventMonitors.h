#pragma once

#include <utility>

#include "platform/EventMonitors.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

// A monitor that could not be added never calls its handler.
class FaultyEventMonitors final : public EventMonitors {
public:
    FaultyEventMonitors(EventMonitors& real, PortFaults& faults) : real(real), faults(faults) {}

    Subscription addGlobalMouseDownMonitor(std::function<void()> handler) override
    {
        return faults.attempt(
            "EventMonitors.addGlobalMouseDownMonitor",
            [&] { return real.addGlobalMouseDownMonitor(std::move(handler)); }, Subscription());
    }

    Subscription addLocalKeyDownMonitor(std::function<EventHandling(const KeyEvent&)> handler) override
    {
        return faults.attempt(
            "EventMonitors.addLocalKeyDownMonitor", [&] { return real.addLocalKeyDownMonitor(std::move(handler)); },
            Subscription());
    }

private:
    EventMonitors& real;
    PortFaults& faults;
};

} // namespace quorvel
