#pragma once

#include <array>
#include <cstdint>
#include <unordered_map>

#include <xcb/xcb.h>

namespace quorvel::x11 {

// Which events somebody of this program wants from which window. A connection has one mask a window, so that parties
// that each set their own would take the others' events away.
class EventMasks {
public:
    // The mask that the window then needs.
    std::uint32_t add(xcb_window_t window, std::uint32_t mask);
    std::uint32_t remove(xcb_window_t window, std::uint32_t mask);

private:
    using Counts = std::array<std::uint32_t, 32>;

    static std::uint32_t maskOf(const Counts& counts);

    std::unordered_map<xcb_window_t, Counts> windows;
};

} // namespace quorvel::x11
