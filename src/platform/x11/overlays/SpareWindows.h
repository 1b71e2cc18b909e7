#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <xcb/xcb.h>

namespace quorvel::x11 {

class Connection;

// Windows that were closed, kept unmapped for those to come. A compositor asks two dozen things about a window that it
// has not seen before, one after the other; of a window that it knows it asks one or two. All of them let clicks
// through and blend alike.
class SpareWindows {
public:
    explicit SpareWindows(Connection& connection) : connection(connection) {}
    SpareWindows(const SpareWindows&) = delete;
    SpareWindows& operator=(const SpareWindows&) = delete;
    ~SpareWindows() { destroyAll(); }

    // Takes the window off the screen, for good where there are enough of them.
    void keep(xcb_window_t window);

    // The one that has been hidden for longest.
    std::optional<xcb_window_t> take();

    void destroyAll();

private:
    static constexpr std::size_t mostWindows = 64; // letters and borders of all windows, and panels

    Connection& connection;
    std::vector<xcb_window_t> windows;
};

} // namespace quorvel::x11
