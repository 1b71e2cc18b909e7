#include "platform/x11/overlays/OverlayStacking.h"

#include <algorithm>
#include <span>
#include <utility>

#include "platform/MainQueue.h"
#include "platform/x11/Connection.h"

namespace quorvel::x11 {

namespace {

// A screen locker or another program's overlay may insist on being in front, too. After that many tries it may.
constexpr int maximumRaises = 8;

void restack(Connection& connection, xcb_window_t window, std::optional<xcb_window_t> inFront)
{
    xcb_configure_window_value_list_t values{};
    values.sibling = inFront.value_or(XCB_WINDOW_NONE);
    values.stack_mode = inFront ? XCB_STACK_MODE_BELOW : XCB_STACK_MODE_ABOVE;
    const auto sibling = inFront ? XCB_CONFIG_WINDOW_SIBLING : 0;
    xcb_configure_window_aux(connection.xcb(), window,
                             static_cast<std::uint16_t>(XCB_CONFIG_WINDOW_STACK_MODE | sibling), &values);
}

} // namespace

void OverlayStacking::raise(xcb_window_t window, int level, Age age)
{
    std::erase_if(backToFront, [&](const Entry& entry) { return entry.window == window; });
    const auto inFront = std::ranges::find_if(backToFront, [&](const Entry& entry) { return entry.level > level; });
    if (inFront != backToFront.end()) {
        restack(connection, window, inFront->window);
    } else if (age == Age::old) {
        restack(connection, window, std::nullopt);
    }
    backToFront.insert(inFront, {window, level});
    raisesLeft = maximumRaises;
    reviewWatchSoon();
}

void OverlayStacking::remove(xcb_window_t window)
{
    std::erase_if(backToFront, [&](const Entry& entry) { return entry.window == window; });
    reviewWatchSoon();
}

bool OverlayStacking::contains(xcb_window_t window) const
{
    return std::ranges::find(backToFront, window, &Entry::window) != backToFront.end();
}

// The server visits every window there is when the events of the root change. That must not hold up what is shown.
void OverlayStacking::reviewWatchSoon()
{
    if (!std::exchange(isReviewScheduled, true)) {
        mainQueue.async(weakGuard.guard([this] { reviewWatch(); }));
    }
}

void OverlayStacking::reviewWatch()
{
    isReviewScheduled = false;
    if (backToFront.empty()) {
        othersEvents.clear();
    } else if (othersEvents.empty()) {
        watchOthers();
        if (isBehindOthers()) {
            handleOther(); // it came before the events were selected
        }
    }
}

bool OverlayStacking::isBehindOthers() const
{
    PendingReply<xcb_query_tree_reply> pending(connection.xcb(), xcb_query_tree(connection.xcb(), connection.root()));
    const auto tree = pending.take();
    if (!tree) {
        return false;
    }
    const std::span all(xcb_query_tree_children(tree.get()), tree->children_len);
    const auto lowest = std::ranges::find_if(all, [this](auto window) { return contains(window); });
    return std::any_of(lowest, all.end(), [this](auto window) { return !contains(window) && isViewable(window); });
}

bool OverlayStacking::isViewable(xcb_window_t window) const
{
    PendingReply<xcb_get_window_attributes_reply> pending(connection.xcb(),
                                                          xcb_get_window_attributes(connection.xcb(), window));
    const auto attributes = pending.take();
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

// Visibility events would not do: windows that a compositor draws count as unobscured.
void OverlayStacking::watchOthers()
{
    othersEvents.push_back(connection.selectEvents(connection.root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY));
    othersEvents.push_back(connection.addHandler<xcb_configure_notify_event_t>(
        XCB_CONFIGURE_NOTIFY, [this](const xcb_configure_notify_event_t& event) {
            if (!contains(event.window) && contains(event.above_sibling)) {
                handleOther();
            }
        }));
    othersEvents.push_back(
        connection.addHandler<xcb_map_notify_event_t>(XCB_MAP_NOTIFY, [this](const xcb_map_notify_event_t& event) {
            if (event.event == connection.root() && !contains(event.window)) {
                handleOther();
            }
        }));
}

void OverlayStacking::handleOther()
{
    if (!isRaiseScheduled && raisesLeft > 0) {
        isRaiseScheduled = true;
        mainQueue.async(weakGuard.guard([this] { raiseAll(); }));
    }
}

void OverlayStacking::raiseAll()
{
    isRaiseScheduled = false;
    --raisesLeft;
    for (const auto& entry : backToFront) {
        restack(connection, entry.window, std::nullopt);
    }
}

} // namespace quorvel::x11
