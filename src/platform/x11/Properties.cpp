#include "platform/x11/Properties.h"

namespace quorvel::x11 {

namespace {

constexpr std::uint32_t longestProperty = 1U << 16; // in units of four bytes

} // namespace

PendingProperty requestProperty(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t name)
{
    return {connection, xcb_get_property(connection, 0, window, name, XCB_ATOM_ANY, 0, longestProperty)};
}

std::vector<std::uint32_t> cardinals(const xcb_get_property_reply_t* reply)
{
    if (reply == nullptr || reply->format != 32) {
        return {};
    }
    const auto* const first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply));
    return {first, first + reply->value_len};
}

std::uint32_t cardinal(const xcb_get_property_reply_t* reply)
{
    const auto values = cardinals(reply);
    return values.empty() ? 0U : values.front();
}

std::string text(const xcb_get_property_reply_t* reply)
{
    if (reply == nullptr || reply->format != 8) {
        return {};
    }
    return {static_cast<const char*>(xcb_get_property_value(reply)), reply->value_len};
}

} // namespace quorvel::x11
