#include "platform/simulated/SimulatedEventMonitors.h"

#include <utility>

#include "platform/simulated/Journal.h"

namespace quorvel {

namespace {

template <class Handlers, class Handler>
Subscription add(Journal& journal, const std::shared_ptr<Handlers>& handlers, std::uint64_t id, Handler handler)
{
    handlers->emplace(id, std::move(handler));
    return Subscription([&journal, handlers = std::weak_ptr(handlers), id] {
        if (const auto current = handlers.lock()) {
            journal.record("EventMonitors.remove({})", id);
            current->erase(id);
        }
    });
}

// A handler may remove monitors, itself among them; a removed one no longer hears of the event.
template <class Handlers, class... Arguments>
void tell(const Handlers& handlers, const Arguments&... arguments)
{
    for (const auto& [id, handler] : Handlers(handlers)) {
        if (handlers.contains(id)) {
            handler(arguments...);
        }
    }
}

} // namespace

Subscription SimulatedEventMonitors::addGlobalMouseDownMonitor(std::function<void()> handler)
{
    journal.record("EventMonitors.addGlobalMouseDownMonitor({})", nextId);
    return add(journal, mouseMonitors, nextId++, std::move(handler));
}

Subscription SimulatedEventMonitors::addLocalKeyDownMonitor(std::function<void(const KeyEvent&)> handler)
{
    journal.record("EventMonitors.addLocalKeyDownMonitor({})", nextId);
    return add(journal, keyMonitors, nextId++, std::move(handler));
}

void SimulatedEventMonitors::mouseDown()
{
    tell(*mouseMonitors);
}

void SimulatedEventMonitors::keyDown(const KeyEvent& event)
{
    tell(*keyMonitors, event);
}

} // namespace quorvel
