#include "platform/x11/windows/WindowAncestry.h"

#include <utility>

#include "platform/x11/Connection.h"

namespace quorvel::x11 {

WindowAncestry::WindowAncestry(Connection& connection, Listener listener)
    : connection(connection), listener(std::move(listener))
{
    const auto noteKept = [this](const auto& event) { note(event.window, Kinship::kept); };
    const auto noteLost = [this](const auto& event) { note(event.window, Kinship::lost); };
    changes.push_back(connection.addArrivalHandler<xcb_configure_notify_event_t>(XCB_CONFIGURE_NOTIFY, noteKept));
    changes.push_back(connection.addArrivalHandler<xcb_gravity_notify_event_t>(XCB_GRAVITY_NOTIFY, noteKept));
    changes.push_back(connection.addArrivalHandler<xcb_map_notify_event_t>(XCB_MAP_NOTIFY, noteKept));
    changes.push_back(connection.addArrivalHandler<xcb_unmap_notify_event_t>(XCB_UNMAP_NOTIFY, noteKept));
    changes.push_back(connection.addArrivalHandler<xcb_reparent_notify_event_t>(XCB_REPARENT_NOTIFY, noteLost));
    changes.push_back(connection.addArrivalHandler<xcb_destroy_notify_event_t>(XCB_DESTROY_NOTIFY, noteLost));
}

void WindowAncestry::learn(std::span<const xcb_window_t> clients)
{
    std::vector<Climb> climbing;
    for (const auto client : clients) {
        if (!isKnown(client)) {
            climbing.push_back({client, {}, {}});
            stepTo(climbing.back(), client);
        }
    }
    while (!climbing.empty()) {
        std::vector<Climb> higher;
        for (auto& climb : climbing) {
            if (ascend(climb) == Progress::goesOn) {
                higher.push_back(std::move(climb));
            }
        }
        climbing = std::move(higher);
    }
}

void WindowAncestry::stepTo(Climb& climb, xcb_window_t window)
{
    climb.lineage.windows.push_back(window);
    climb.lineage.selections.push_back(connection.selectEvents(window, XCB_EVENT_MASK_STRUCTURE_NOTIFY));
    climb.next = {connection.xcb(), xcb_query_tree(connection.xcb(), window)};
}

// Ends below the root, and where something has vanished on the way.
WindowAncestry::Progress WindowAncestry::ascend(Climb& climb)
{
    const auto tree = climb.next.take();
    if (!tree) {
        return Progress::ends;
    }
    if (tree->parent != tree->root && tree->parent != XCB_NONE) {
        stepTo(climb, tree->parent);
        return Progress::goesOn;
    }
    remember(climb.client, std::move(climb.lineage));
    return Progress::ends;
}

void WindowAncestry::remember(xcb_window_t client, Lineage lineage)
{
    for (const auto window : lineage.windows) {
        clientsByWindow[window].push_back(client);
    }
    lineages.insert_or_assign(client, std::move(lineage));
}

void WindowAncestry::forget(xcb_window_t client)
{
    const auto lineage = lineages.extract(client);
    if (lineage.empty()) {
        return;
    }
    for (const auto window : lineage.mapped().windows) {
        const auto entry = clientsByWindow.find(window);
        std::erase(entry->second, client);
        if (entry->second.empty()) {
            clientsByWindow.erase(entry);
        }
    }
}

xcb_window_t WindowAncestry::topLevel(xcb_window_t client) const
{
    const auto lineage = lineages.find(client);
    return lineage != lineages.end() ? lineage->second.windows.back() : client;
}

void WindowAncestry::note(xcb_window_t window, Kinship kinship)
{
    const auto entry = clientsByWindow.find(window);
    if (entry == clientsByWindow.end()) {
        return;
    }
    const auto concerned = entry->second; // a copy: forgetting changes it
    for (const auto client : concerned) {
        if (kinship == Kinship::lost) {
            forget(client);
        }
        listener(client);
    }
}

} // namespace quorvel::x11
