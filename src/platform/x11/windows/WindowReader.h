#pragma once

#include <map>
#include <optional>
#include <span>
#include <vector>

#include <xcb/xcb.h>

#include "base/Subscription.h"
#include "platform/x11/windows/WindowSnapshot.h"

namespace quorvel::x11 {

class Connection;
class WindowAncestry;

// Reads windows, many at the price of one: all requests are sent before the first reply is awaited.
class WindowReader {
public:
    WindowReader(Connection& connection, const WindowAncestry& ancestry);

    // One entry for each window, in their order; absent for those that vanished. Costs one round trip, and another one
    // where some window's frame is not described by properties but has to be measured. The ancestry knows the windows.
    std::vector<std::optional<WindowSnapshot>> read(std::span<const xcb_window_t> windows);

    // The children of the root, bottom to top.
    std::vector<xcb_window_t> topLevels();

private:
    void readIdentities(std::span<const xcb_window_t> windows);
    void measureFrames(std::span<const xcb_window_t> windows, std::vector<std::optional<WindowSnapshot>>& snapshots,
                       std::span<const std::size_t> undescribed);
    WindowKind kindOf(std::span<const std::uint32_t> types) const;
    ProcessId clientNumber(xcb_window_t window) const;

    // Holds until the window goes, and no longer: its number may be given to another one at once.
    struct KnownIdentity {
        Subscription selection;
        WindowIdentity identity;
    };

    Connection& connection;
    const WindowAncestry& ancestry;
    std::map<xcb_window_t, KnownIdentity> identities;
    Subscription destructions;
};

} // namespace quorvel::x11
