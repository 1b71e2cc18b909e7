#pragma once

#include <xcb/xcb.h>

namespace quorvel::x11 {

class Connection;

// The window that owns a selection, or XCB_NONE; waits for the server.
xcb_window_t selectionOwner(const Connection& connection, xcb_atom_t selection);

} // namespace quorvel::x11
