#include "platform/x11/InstanceClaim.h"

#include <chrono>
#include <cstddef>
#include <cstdint>

#include <fmt/format.h>
#include <glib.h>

#include "platform/MainQueue.h"
#include "platform/x11/Connection.h"
#include "platform/x11/Properties.h"
#include "platform/x11/Selections.h"

namespace quorvel::x11 {

namespace {

// How long a program that was asked to end may take.
constexpr std::chrono::seconds patience{5};

xcb_atom_t selectionOf(Connection& connection)
{
    return connection.atom(fmt::format("_QUORVEL_S{}", connection.screenNumber()));
}

xcb_atom_t hotKeysProperty(Connection& connection)
{
    return connection.atom("_QUORVEL_HOT_KEYS");
}

// Turns the loop until the window is gone; false when patience is over.
bool waitForEnd(Connection& connection, MainQueue& mainQueue, xcb_window_t window)
{
    bool isGone = false;
    bool isOver = false;
    const auto watching = connection.addHandler<xcb_destroy_notify_event_t>(
        XCB_DESTROY_NOTIFY,
        [&](const xcb_destroy_notify_event_t& event) { isGone = isGone || event.window == window; });
    const auto selecting = connection.selectEvents(window, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    const auto waiting = mainQueue.repeat(patience, [&] { isOver = true; });
    // It may have gone before it was watched.
    PendingReply<xcb_get_geometry_reply> pending(connection.xcb(), xcb_get_geometry(connection.xcb(), window));
    isGone = pending.take() == nullptr;
    while (!isGone && !isOver) {
        g_main_context_iteration(nullptr, TRUE);
    }
    return isGone;
}

} // namespace

std::unique_ptr<InstanceClaim> InstanceClaim::make(Connection& connection)
{
    const xcb_atom_t selection = selectionOf(connection);

    // Looking and claiming have to be one step, since two programs may start at the same time.
    xcb_grab_server(connection.xcb());
    std::unique_ptr<InstanceClaim> claim;
    if (selectionOwner(connection, selection) == XCB_NONE) {
        claim.reset(new InstanceClaim(connection, selection));
    }
    xcb_ungrab_server(connection.xcb());
    connection.flush();
    return claim;
}

std::unique_ptr<InstanceClaim> InstanceClaim::takeOver(Connection& connection, MainQueue& mainQueue)
{
    const xcb_atom_t selection = selectionOf(connection);
    const xcb_window_t owner = selectionOwner(connection, selection);
    std::unique_ptr<InstanceClaim> claim(new InstanceClaim(connection, selection));
    const bool isFree = owner == XCB_NONE || waitForEnd(connection, mainQueue, owner);
    return isFree ? std::move(claim) : nullptr;
}

InstanceClaim::InstanceClaim(Connection& connection, xcb_atom_t selection)
    : connection(connection),
      window(xcb_generate_id(connection.xcb())),
      loss(connection.addHandler<xcb_selection_clear_event_t>(XCB_SELECTION_CLEAR,
                                                              [this](const xcb_selection_clear_event_t& event) {
                                                                  if (event.owner == window && onLost) {
                                                                      onLost();
                                                                  }
                                                              }))
{
    xcb_create_window(connection.xcb(), XCB_COPY_FROM_PARENT, window, connection.root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_set_selection_owner(connection.xcb(), window, selection, XCB_CURRENT_TIME);
}

InstanceClaim::~InstanceClaim()
{
    xcb_destroy_window(connection.xcb(), window);
    connection.flush();
}

void InstanceClaim::announce(std::span<const HeldHotKey> hotKeys)
{
    std::vector<std::uint32_t> items;
    for (const auto& [keyCode, modifiers] : hotKeys) {
        items.insert(items.end(), {keyCode, modifiers});
    }
    xcb_change_property(connection.xcb(), XCB_PROP_MODE_REPLACE, window, hotKeysProperty(connection), XCB_ATOM_CARDINAL,
                        32, static_cast<std::uint32_t>(items.size()), items.data());
}

std::optional<std::vector<HeldHotKey>> InstanceClaim::announcedHotKeys(Connection& connection)
{
    const xcb_window_t owner = selectionOwner(connection, selectionOf(connection));
    if (owner == XCB_NONE) {
        return std::nullopt;
    }
    const auto items = cardinals(requestProperty(connection.xcb(), owner, hotKeysProperty(connection)).take().get());
    std::vector<HeldHotKey> hotKeys;
    for (std::size_t index = 0; index + 1 < items.size(); index += 2) {
        hotKeys.push_back({items[index], items[index + 1]});
    }
    return hotKeys;
}

} // namespace quorvel::x11
