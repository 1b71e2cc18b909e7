#pragma once

#include <memory>

#include <xcb/xcb.h>

namespace quorvel::x11 {

class Connection;

// The mark of the one running program on a display. The server takes it away with the connection, so a program that
// crashed leaves none behind.
class InstanceClaim {
public:
    // Null if another program has claimed the display.
    static std::unique_ptr<InstanceClaim> make(Connection& connection);

    InstanceClaim(const InstanceClaim&) = delete;
    InstanceClaim& operator=(const InstanceClaim&) = delete;
    ~InstanceClaim();

private:
    explicit InstanceClaim(Connection& connection);

    Connection& connection;
    xcb_window_t window;
};

} // namespace quorvel::x11
