#include "platform/x11/windows/ClientWindows.h"

#include <algorithm>
#include <utility>

#include "platform/x11/Connection.h"
#include "platform/x11/RootProperties.h"

namespace quorvel::x11 {

ClientWindows::ClientWindows(Connection& connection, RootProperties& rootProperties)
    : connection(connection),
      rootProperties(rootProperties),
      reader(connection),
      listChanges(connection.addHandler<xcb_property_notify_event_t>(XCB_PROPERTY_NOTIFY, [this](const auto& event) {
          if (event.window == this->connection.root() && event.atom == this->connection.atoms().netClientList) {
              haveClientsChanged = true;
          }
      }))
{}

const WindowSnapshot* ClientWindows::find(xcb_window_t window)
{
    beginTurn();
    if (!snapshots.contains(window)) {
        read({window});
    }
    const auto& snapshot = snapshots[window];
    return snapshot ? &*snapshot : nullptr;
}

const WindowSnapshot* ClientWindows::find(xcb_window_t window, ProcessId process)
{
    const auto* const snapshot = find(window);
    const bool isSame = snapshot != nullptr && snapshot->identity.process == process && !snapshot->isWithdrawn();
    return isSame ? snapshot : nullptr;
}

// The window manager's own list may lag behind what is on the screen; the order of the frames never does.
std::vector<xcb_window_t> ClientWindows::frontToBack()
{
    beginTurn();
    if (order) {
        return *order;
    }
    auto windows = rootProperties.clientListStacking.values();
    if (windows.empty()) {
        windows = rootProperties.clientList.values();
    }
    read(windows);
    std::erase_if(windows, [this](xcb_window_t window) { return !snapshots[window]; });
    std::vector<xcb_window_t> parents;
    for (const auto window : windows) {
        parents.push_back(snapshots[window]->parent);
    }
    const auto ancestors = reader.topLevelAncestors(windows, parents);
    std::unordered_map<xcb_window_t, std::size_t> heights;
    for (const auto topLevel : reader.topLevels()) {
        heights.emplace(topLevel, heights.size());
    }
    std::vector<std::pair<std::size_t, xcb_window_t>> ranked;
    for (std::size_t i = 0; i < windows.size(); ++i) {
        ranked.emplace_back(heights[ancestors[i]], windows[i]);
    }
    std::ranges::stable_sort(ranked, {}, &std::pair<std::size_t, xcb_window_t>::first);
    order.emplace();
    for (const auto& [height, window] : ranked) {
        order->insert(order->begin(), window);
    }
    return *order;
}

xcb_window_t ClientWindows::activeWindow()
{
    return rootProperties.activeWindow.value();
}

bool ClientWindows::isOnCurrentDesktop(const WindowSnapshot& window)
{
    return window.desktop == allDesktops || window.desktop == rootProperties.currentDesktop.value();
}

void ClientWindows::beginTurn()
{
    if (turn != connection.turn()) {
        turn = connection.turn();
        snapshots.clear();
        order.reset();
    }
}

void ClientWindows::read(const std::vector<xcb_window_t>& windows)
{
    if (std::exchange(haveClientsChanged, false)) {
        reader.forgetAllBut(rootProperties.clientList.values());
    }
    auto results = reader.read(windows);
    for (std::size_t i = 0; i < windows.size(); ++i) {
        snapshots.insert_or_assign(windows[i], std::move(results[i]));
    }
}

} // namespace quorvel::x11
