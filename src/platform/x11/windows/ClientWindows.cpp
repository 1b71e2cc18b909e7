#include "platform/x11/windows/ClientWindows.h"

#include <algorithm>
#include <ranges>
#include <utility>

#include "platform/x11/Connection.h"
#include "platform/x11/RootProperties.h"

namespace quorvel::x11 {

ClientWindows::ClientWindows(Connection& connection, RootProperties& rootProperties)
    : connection(connection), rootProperties(rootProperties), reader(connection)
{
    const auto note = [this](const auto& event) { noteChange(event.window); };
    windowChanges.push_back(connection.addHandler<xcb_configure_notify_event_t>(XCB_CONFIGURE_NOTIFY, note));
    windowChanges.push_back(connection.addHandler<xcb_reparent_notify_event_t>(XCB_REPARENT_NOTIFY, note));
    windowChanges.push_back(connection.addHandler<xcb_map_notify_event_t>(XCB_MAP_NOTIFY, note));
    windowChanges.push_back(connection.addHandler<xcb_unmap_notify_event_t>(XCB_UNMAP_NOTIFY, note));
    windowChanges.push_back(connection.addHandler<xcb_destroy_notify_event_t>(XCB_DESTROY_NOTIFY, note));
    windowChanges.push_back(connection.addHandler<xcb_property_notify_event_t>(XCB_PROPERTY_NOTIFY, note));
}

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

Subscription ClientWindows::follow(xcb_window_t window)
{
    auto& entry = followed[window];
    if (++entry.followers == 1) {
        entry.selection =
            connection.selectEvents(window, XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE);
    }
    return Subscription(weakGuard.guard([this, window] { unfollow(window); }));
}

void ClientWindows::unfollow(xcb_window_t window)
{
    const auto entry = followed.find(window);
    if (--entry->second.followers == 0) {
        followed.erase(entry);
    }
}

void ClientWindows::noteChange(xcb_window_t window)
{
    if (const auto entry = followed.find(window); entry != followed.end()) {
        entry->second.isKnown = false;
        snapshots.erase(window);
    }
}

std::vector<xcb_window_t> ClientWindows::frontToBack()
{
    readOrder();
    return *order;
}

std::vector<xcb_window_t> ClientWindows::windowsOf(ProcessId process)
{
    readOrder();
    const auto windows = windowsByProcess.find(process);
    return windows != windowsByProcess.end() ? windows->second : std::vector<xcb_window_t>();
}

// The window manager's own list may lag behind what is on the screen; the order of the frames never does.
void ClientWindows::readOrder()
{
    beginTurn();
    if (order) {
        return;
    }
    auto windows = rootProperties.clientListStacking.values();
    if (windows.empty()) {
        windows = rootProperties.clientList.values();
    }
    read(windows);
    std::erase_if(windows, [this](xcb_window_t window) { return !snapshots[window]; });
    std::vector<xcb_window_t> parents;
    parents.reserve(windows.size());
    for (const auto window : windows) {
        parents.push_back(snapshots[window]->parent);
    }
    const auto ancestors = reader.topLevelAncestors(windows, parents);
    std::unordered_map<xcb_window_t, std::size_t> heights;
    for (const auto topLevel : reader.topLevels()) {
        heights.emplace(topLevel, heights.size());
    }
    std::vector<std::pair<std::size_t, xcb_window_t>> ranked;
    ranked.reserve(windows.size());
    for (std::size_t i = 0; i < windows.size(); ++i) {
        ranked.emplace_back(heights[ancestors[i]], windows[i]);
    }
    std::ranges::stable_sort(ranked, {}, &std::pair<std::size_t, xcb_window_t>::first);
    order.emplace();
    for (const auto& [height, window] : std::views::reverse(ranked)) {
        order->push_back(window);
    }
    for (const auto presence : {WindowPresence::onScreen, WindowPresence::elsewhere, WindowPresence::minimized}) {
        for (const auto window : *order) {
            if (const auto& snapshot = *snapshots[window]; presenceOf(snapshot) == presence) {
                windowsByProcess[snapshot.identity.process].push_back(window);
            }
        }
    }
}

xcb_window_t ClientWindows::activeWindow()
{
    return rootProperties.activeWindow.value();
}

bool ClientWindows::isOnCurrentDesktop(const WindowSnapshot& window)
{
    return window.desktop == allDesktops || window.desktop == rootProperties.currentDesktop.value();
}

WindowPresence ClientWindows::presenceOf(const WindowSnapshot& window)
{
    if (window.isHidden) {
        return WindowPresence::minimized;
    }
    const bool isOnScreen = window.mapState == XCB_MAP_STATE_VIEWABLE && isOnCurrentDesktop(window);
    return isOnScreen ? WindowPresence::onScreen : WindowPresence::elsewhere;
}

void ClientWindows::beginTurn()
{
    if (turn != connection.turn()) {
        turn = connection.turn();
        std::erase_if(snapshots, [this](const auto& entry) { return !isKnown(entry.first, entry.second); });
        order.reset();
        windowsByProcess.clear();
    }
}

// A frame that had to be measured may change without a word to its client.
bool ClientWindows::isKnown(xcb_window_t window, const std::optional<WindowSnapshot>& snapshot) const
{
    const auto entry = followed.find(window);
    return entry != followed.end() && entry->second.isKnown && snapshot && snapshot->isFrameDescribed;
}

void ClientWindows::read(const std::vector<xcb_window_t>& windows)
{
    auto results = reader.read(windows);
    for (std::size_t i = 0; i < windows.size(); ++i) {
        snapshots.insert_or_assign(windows[i], std::move(results[i]));
        if (const auto entry = followed.find(windows[i]); entry != followed.end()) {
            entry->second.isKnown = true;
        }
    }
}

} // namespace quorvel::x11
