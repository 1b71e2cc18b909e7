#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include <xcb/xcb.h>

#include "base/Subscription.h"
#include "platform/x11/keys/HeldHotKey.h"

namespace quorvel {
class MainQueue;
}

namespace quorvel::x11 {

class Connection;

// The mark of the one running program on a display. The server takes it away with the connection, so a program that
// crashed leaves none behind.
class InstanceClaim {
public:
    // Null if another program has claimed the display.
    static std::unique_ptr<InstanceClaim> make(Connection& connection);

    // Asks the program that has claimed the display to end, and turns the main loop until it has. Null if it does not.
    static std::unique_ptr<InstanceClaim> takeOver(Connection& connection, MainQueue& mainQueue);

    InstanceClaim(const InstanceClaim&) = delete;
    InstanceClaim& operator=(const InstanceClaim&) = delete;
    ~InstanceClaim();

    // Runs, from the main loop, when another program takes the claim over and waits for this one to end.
    void setLostHandler(std::function<void()> handler) { onLost = std::move(handler); }

    // Tells whoever asks on this display which hot keys this program holds.
    void announce(std::span<const HeldHotKey> hotKeys);

    // What the program that has claimed the display announced; nothing where none has.
    static std::optional<std::vector<HeldHotKey>> announcedHotKeys(Connection& connection);

private:
    InstanceClaim(Connection& connection, xcb_atom_t selection);

    Connection& connection;
    xcb_window_t window;
    std::function<void()> onLost;
    Subscription loss;
};

} // namespace quorvel::x11
