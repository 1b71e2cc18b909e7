#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>

#include "platform/EventMonitors.h"

namespace quorvel {

class Journal;

class SimulatedEventMonitors final : public EventMonitors {
public:
    explicit SimulatedEventMonitors(Journal& journal) : journal(journal) {}

    Subscription addGlobalMouseDownMonitor(std::function<void()> handler) override;
    Subscription addLocalKeyDownMonitor(std::function<void(const KeyEvent&)> handler) override;

    std::size_t mouseMonitorCount() const { return mouseMonitors->size(); }
    std::size_t keyMonitorCount() const { return keyMonitors->size(); }

    // Tell the monitors, now.
    void mouseDown();
    void keyDown(const KeyEvent& event);

private:
    template <class Handler>
    using Handlers = std::map<std::uint64_t, Handler>;

    Journal& journal;
    std::shared_ptr<Handlers<std::function<void()>>> mouseMonitors =
        std::make_shared<Handlers<std::function<void()>>>();
    std::shared_ptr<Handlers<std::function<void(const KeyEvent&)>>> keyMonitors =
        std::make_shared<Handlers<std::function<void(const KeyEvent&)>>>();
    std::uint64_t nextId = 1;
};

} // namespace quorvel
