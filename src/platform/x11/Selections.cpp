#include "platform/x11/Selections.h"

#include "platform/x11/Connection.h"

namespace quorvel::x11 {

xcb_window_t selectionOwner(const Connection& connection, xcb_atom_t selection)
{
    PendingReply<xcb_get_selection_owner_reply> pending(connection.xcb(),
                                                        xcb_get_selection_owner(connection.xcb(), selection));
    const auto reply = pending.take();
    return reply ? reply->owner : xcb_window_t{XCB_NONE};
}

} // namespace quorvel::x11
