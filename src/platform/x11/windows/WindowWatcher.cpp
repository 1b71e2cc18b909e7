#include "platform/x11/windows/WindowWatcher.h"

#include <array>
#include <utility>

#include "platform/MainQueue.h"
#include "platform/x11/Connection.h"
#include "platform/x11/Contains.h"
#include "platform/x11/windows/ClientWindows.h"
#include "platform/x11/windows/Placements.h"

namespace quorvel::x11 {

WindowWatcher::WindowWatcher(Connection& connection, MainQueue& mainQueue, ClientWindows& windows,
                             Placements& placements)
    : connection(connection), mainQueue(mainQueue), windows(windows), placements(placements)
{
    placements.whenOuterMayChange(weakGuard.guard([this](xcb_window_t window) { noteChange(window); }));
    const auto note = [this](const auto& event) { noteChange(event.window); };
    subscriptions.push_back(connection.addHandler<xcb_configure_notify_event_t>(XCB_CONFIGURE_NOTIFY, note));
    subscriptions.push_back(connection.addHandler<xcb_reparent_notify_event_t>(XCB_REPARENT_NOTIFY, note));
    subscriptions.push_back(connection.addHandler<xcb_unmap_notify_event_t>(XCB_UNMAP_NOTIFY, note));
    subscriptions.push_back(connection.addHandler<xcb_destroy_notify_event_t>(XCB_DESTROY_NOTIFY, note));
    subscriptions.push_back(
        connection.addHandler<xcb_property_notify_event_t>(XCB_PROPERTY_NOTIFY, [this](const auto& event) {
            const auto& atoms = this->connection.atoms();
            if (contains(std::array{atoms.wmState, atoms.netFrameExtents, atoms.gtkFrameExtents}, event.atom)) {
                noteChange(event.window);
            }
        }));
}

Subscription WindowWatcher::watch(xcb_window_t window, Listener function)
{
    auto listener = std::make_shared<const Listener>(std::move(function));
    const auto [entry, isFirst] = watched.try_emplace(window);
    if (isFirst) {
        entry->second.following = windows.follow(window);
        if (const auto* const snapshot = windows.find(window)) {
            entry->second.outer = placements.outer(window, *snapshot);
        }
    }
    entry->second.listeners.push_back(listener);
    noteChange(window); // what happened between the reading of the window and the selection of its events
    return Subscription(weakGuard.guard([this, window, listener = std::move(listener)] { remove(window, listener); }));
}

void WindowWatcher::remove(xcb_window_t window, const std::shared_ptr<const Listener>& listener)
{
    const auto entry = watched.find(window);
    if (entry == watched.end()) {
        return;
    }
    std::erase(entry->second.listeners, listener);
    if (entry->second.listeners.empty()) {
        watched.erase(entry);
    }
}

void WindowWatcher::noteChange(xcb_window_t window)
{
    if (!watched.contains(window)) {
        return;
    }
    if (changed.empty()) {
        mainQueue.async(weakGuard.guard([this] { review(); }));
    }
    changed.insert(window);
}

void WindowWatcher::review()
{
    for (const auto window : std::exchange(changed, {})) {
        review(window);
    }
}

void WindowWatcher::review(xcb_window_t window)
{
    const auto entry = watched.find(window);
    if (entry == watched.end()) {
        return;
    }
    const auto* const snapshot = windows.find(window);
    if (snapshot == nullptr || snapshot->isWithdrawn()) {
        tell(window, WindowChange::destroyed);
        watched.erase(window);
        return;
    }
    const auto previous = std::exchange(entry->second.outer, placements.outer(window, *snapshot));
    const auto current = entry->second.outer;
    if (current.origin() != previous.origin()) {
        tell(window, WindowChange::moved);
    }
    if (current.size() != previous.size()) {
        tell(window, WindowChange::resized);
    }
}

// Listeners come and go while others are called.
void WindowWatcher::tell(xcb_window_t window, WindowChange change)
{
    const auto entry = watched.find(window);
    if (entry == watched.end()) {
        return;
    }
    const auto called = entry->second.listeners;
    for (const auto& listener : called) {
        const auto current = watched.find(window);
        if (current != watched.end() && contains(current->second.listeners, listener)) {
            (*listener)(change);
        }
    }
}

} // namespace quorvel::x11
