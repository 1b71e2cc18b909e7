#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <xcb/xcb.h>

#include "platform/x11/Reply.h"

namespace quorvel::x11 {

using PendingProperty = PendingReply<xcb_get_property_reply>;

// Asks for a property of any type, up to a generous length.
PendingProperty requestProperty(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t name);

// The values of a property of 32-bit items; empty for an absent property and one of another format.
std::vector<std::uint32_t> cardinals(const xcb_get_property_reply_t* reply);

// The first of them, or 0.
std::uint32_t cardinal(const xcb_get_property_reply_t* reply);

// The bytes of a property of 8-bit items.
std::string text(const xcb_get_property_reply_t* reply);

} // namespace quorvel::x11
