#include "platform/simulated/SimulatedEventMonitors.h"

#include <memory>
#include <utility>

#include "platform/simulated/Journal.h"

namespace quorvel {

Subscription SimulatedEventMonitors::addGlobalMouseDownMonitor(std::function<void()> handler)
{
    journal.record("EventMonitors.addGlobalMouseDownMonitor({})", nextId);
    return refusesMouseMonitors ? Subscription() : journalled(mouseMonitors.observe(std::move(handler)));
}

Subscription SimulatedEventMonitors::addLocalKeyDownMonitor(std::function<EventHandling(const KeyEvent&)> handler)
{
    journal.record("EventMonitors.addLocalKeyDownMonitor({})", nextId);
    return journalled(
        keyMonitors.observe([handler = std::move(handler)](const KeyEvent& event, EventHandling& handling) {
            if (handling == EventHandling::pass) {
                handling = handler(event);
            }
        }));
}

EventHandling SimulatedEventMonitors::keyDown(const KeyEvent& event)
{
    auto handling = EventHandling::pass;
    keyMonitors.emit(event, handling);
    return handling;
}

// The monitor, with its end written down as well.
Subscription SimulatedEventMonitors::journalled(Subscription registration)
{
    return Subscription([this, id = nextId++, monitor = std::make_shared<Subscription>(std::move(registration))] {
        journal.record("EventMonitors.remove({})", id);
        monitor->reset();
    });
}

} // namespace quorvel
