#include "platform/x11/overlays/CompositorWatch.h"

#include <utility>

#include <fmt/format.h>
#include <xcb/xfixes.h>

#include "platform/x11/Connection.h"
#include "platform/x11/Selections.h"

namespace quorvel::x11 {

CompositorWatch::CompositorWatch(Connection& connection, std::function<void()> onChange)
    : connection(connection),
      onChange(std::move(onChange)),
      selection(connection.atom(fmt::format("_NET_WM_CM_S{}", connection.screenNumber())))
{
    watch();
    running = readOwner();
}

void CompositorWatch::watch()
{
    const auto* const xfixes = connection.extension(&xcb_xfixes_id);
    if (xfixes == nullptr) {
        return;
    }
    // The server takes requests of the extension only from clients that have told their version.
    const PendingReply<xcb_xfixes_query_version_reply> version(
        connection.xcb(),
        xcb_xfixes_query_version(connection.xcb(), XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION));
    xcb_xfixes_select_selection_input(connection.xcb(), connection.root(), selection,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    const auto type = static_cast<std::uint8_t>(xfixes->first_event + XCB_XFIXES_SELECTION_NOTIFY);
    ownerChanges = connection.addHandler<xcb_xfixes_selection_notify_event_t>(type, [this](const auto& event) {
        const bool isOwned = event.owner != XCB_WINDOW_NONE;
        if (event.selection == selection && std::exchange(running, isOwned) != isOwned) {
            onChange();
        }
    });
}

bool CompositorWatch::readOwner() const
{
    return selectionOwner(connection, selection) != XCB_WINDOW_NONE;
}

} // namespace quorvel::x11
