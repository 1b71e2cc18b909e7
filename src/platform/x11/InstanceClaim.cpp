#include "platform/x11/InstanceClaim.h"

#include <fmt/format.h>

#include "platform/x11/Connection.h"

namespace quorvel::x11 {

std::unique_ptr<InstanceClaim> InstanceClaim::make(Connection& connection)
{
    const xcb_atom_t selection = connection.atom(fmt::format("_QUORVEL_S{}", connection.screenNumber()));
    xcb_connection_t* const xcb = connection.xcb();

    // Looking and claiming have to be one step, since two programs may start at the same time.
    xcb_grab_server(xcb);
    PendingReply<xcb_get_selection_owner_reply> pending(xcb, xcb_get_selection_owner(xcb, selection));
    const auto owner = pending.take();
    std::unique_ptr<InstanceClaim> claim;
    if (owner && owner->owner == XCB_NONE) {
        claim.reset(new InstanceClaim(connection));
        xcb_set_selection_owner(xcb, claim->window, selection, XCB_CURRENT_TIME);
    }
    xcb_ungrab_server(xcb);
    connection.flush();
    return claim;
}

InstanceClaim::InstanceClaim(Connection& connection) : connection(connection), window(xcb_generate_id(connection.xcb()))
{
    xcb_create_window(connection.xcb(), XCB_COPY_FROM_PARENT, window, connection.root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
}

InstanceClaim::~InstanceClaim()
{
    xcb_destroy_window(connection.xcb(), window);
    connection.flush();
}

} // namespace quorvel::x11
