#include "soak/ShownWindows.h"

#include <fmt/format.h>

namespace quorvel::soak {

ShownWindows::ShownWindows(xtest::XClient& client, pid_t process) : client(client), process(process)
{
    client.observeEvents([this](const xcb_generic_event_t& event) { observe(event); });
    for (const xcb_window_t window : client.topLevelsOfProcess(process)) {
        shown.insert(window);
    }
}

ShownWindows::~ShownWindows()
{
    client.observeEvents(nullptr);
}

void ShownWindows::waitUntil(std::size_t wanted)
{
    client.waitFor(fmt::format("{} windows of the program", wanted), [&] { return shown.size() == wanted; });
}

void ShownWindows::observe(const xcb_generic_event_t& event)
{
    switch (event.response_type & 0x7F) {
    case XCB_MAP_NOTIFY: {
        const auto& mapped = reinterpret_cast<const xcb_map_notify_event_t&>(event);
        if (mapped.event == client.root() && isOwn(mapped.window)) {
            shown.insert(mapped.window);
            ++arrived;
        }
        break;
    }
    case XCB_UNMAP_NOTIFY:
        shown.erase(reinterpret_cast<const xcb_unmap_notify_event_t&>(event).window);
        break;
    case XCB_DESTROY_NOTIFY:
        shown.erase(reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window);
        break;
    default:
        break;
    }
}

bool ShownWindows::isOwn(xcb_window_t window)
{
    const std::uint32_t connection = window & ~xcb_get_setup(client.connection())->resource_id_mask;
    const auto known = ownConnections.find(connection);
    if (known != ownConnections.end()) {
        return known->second;
    }
    return ownConnections[connection] = client.processOf(window) == process;
}

} // namespace quorvel::soak
