#pragma once

#include <cstdint>
#include <vector>

#include "base/Subscription.h"
#include "platform/x11/Properties.h"

namespace quorvel::x11 {

class Connection;

// A property of the root window, 32-bit items, that is asked for again as soon as it changes; so that whoever needs it
// later finds the answer there. Only who needs it while that very event is handled waits for it. An event that comes
// after the change finds the changed value.
class TrackedProperty {
public:
    TrackedProperty(Connection& connection, xcb_atom_t name);

    const std::vector<std::uint32_t>& values();

    // The first value, or 0.
    std::uint32_t value();

private:
    Connection& connection;
    xcb_atom_t name;
    PendingProperty pending;
    std::vector<std::uint32_t> known;
    Subscription changes;
};

} // namespace quorvel::x11
