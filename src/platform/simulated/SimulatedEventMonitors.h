#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

#include "base/Signal.h"
#include "platform/EventMonitors.h"

namespace quorvel {

class Journal;

class SimulatedEventMonitors final : public EventMonitors {
public:
    explicit SimulatedEventMonitors(Journal& journal) : journal(journal) {}

    Subscription addGlobalMouseDownMonitor(std::function<void()> handler) override;
    Subscription addLocalKeyDownMonitor(std::function<EventHandling(const KeyEvent&)> handler) override;

    std::size_t mouseMonitorCount() const { return mouseMonitors.observerCount(); }
    std::size_t keyMonitorCount() const { return keyMonitors.observerCount(); }

    // Makes the platform refuse further monitors of the mouse: they never hear of anything.
    void refuseMouseMonitors() { refusesMouseMonitors = true; }

    // Tell the monitors, now.
    void mouseDown() { mouseMonitors.emit(); }
    EventHandling keyDown(const KeyEvent& event);

private:
    Subscription journalled(Subscription registration);

    Journal& journal;
    Signal<> mouseMonitors;
    Signal<const KeyEvent&, EventHandling&> keyMonitors;
    std::uint64_t nextId = 1;
    bool refusesMouseMonitors = false;
};

} // namespace quorvel
