#include "platform/x11/windows/ClientWindows.h"

#include <algorithm>
#include <iterator>
#include <ranges>
#include <utility>

#include "platform/x11/Connection.h"
#include "platform/x11/RootProperties.h"

namespace quorvel::x11 {

namespace {

// A window that never comes to rest is taken as it was read last.
constexpr int mostReadings = 4;

} // namespace

ClientWindows::ClientWindows(Connection& connection, RootProperties& rootProperties)
    : connection(connection),
      rootProperties(rootProperties),
      ancestry(connection, [this](xcb_window_t window) { noteChange(window); }),
      reader(connection, ancestry),
      propertyChanges(connection.addArrivalHandler<xcb_property_notify_event_t>(
          XCB_PROPERTY_NOTIFY, [this](const auto& event) { noteChange(event.window); }))
{}

const WindowSnapshot* ClientWindows::find(xcb_window_t window)
{
    beginTurn();
    if (!followed.contains(window)) {
        catchUp();
    }
    if (!known.contains(window)) {
        read({window});
    }
    const auto& snapshot = known[window].snapshot;
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
    known.erase(window);
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
    catchUp();
    auto windows = rootProperties.clientListStacking.values();
    if (windows.empty()) {
        windows = rootProperties.clientList.values();
    }
    read(windows);
    std::erase_if(windows, [this](xcb_window_t window) { return !known[window].snapshot; });
    std::unordered_map<xcb_window_t, std::size_t> heights;
    for (const auto topLevel : reader.topLevels()) {
        heights.emplace(topLevel, heights.size());
    }
    std::vector<std::pair<std::size_t, xcb_window_t>> ranked;
    ranked.reserve(windows.size());
    for (const auto window : windows) {
        ranked.emplace_back(heights[ancestry.topLevel(window)], window);
    }
    std::ranges::stable_sort(ranked, {}, &std::pair<std::size_t, xcb_window_t>::first);
    order.emplace();
    for (const auto& [height, window] : std::views::reverse(ranked)) {
        order->push_back(window);
    }
    for (const auto presence : {WindowPresence::onScreen, WindowPresence::elsewhere, WindowPresence::minimized}) {
        for (const auto window : *order) {
            if (const auto& snapshot = *known[window].snapshot; presenceOf(snapshot) == presence) {
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

// What had vanished when it was asked for may be there now.
void ClientWindows::beginTurn()
{
    if (turn != connection.turn()) {
        turn = connection.turn();
        isUpToDate = false;
        std::erase_if(known,
                      [this](const auto& entry) { return !entry.second.snapshot || !ancestry.isKnown(entry.first); });
        order.reset();
        windowsByProcess.clear();
    }
}

void ClientWindows::catchUp()
{
    if (!std::exchange(isUpToDate, true)) {
        connection.catchUp();
    }
}

// Those that are not known. One that changes while it is read is read again, for it may have been read at two moments.
void ClientWindows::read(const std::vector<xcb_window_t>& windows)
{
    for (int reading = 1; reading <= mostReadings; ++reading) {
        std::vector<xcb_window_t> unknown;
        std::ranges::copy_if(windows, std::back_inserter(unknown),
                             [this](xcb_window_t window) { return !known.contains(window); });
        if (unknown.empty()) {
            return;
        }
        readOnce(unknown);
        if (reading < mostReadings) {
            connection.takeArrived();
        }
    }
}

// Changes are selected first, so that none is missed.
void ClientWindows::readOnce(const std::vector<xcb_window_t>& windows)
{
    for (const auto window : windows) {
        known[window].properties = connection.selectEvents(window, XCB_EVENT_MASK_PROPERTY_CHANGE);
    }
    ancestry.learn(windows);
    auto results = reader.read(windows);
    for (std::size_t i = 0; i < windows.size(); ++i) {
        known[windows[i]].snapshot = std::move(results[i]);
    }
}

} // namespace quorvel::x11
