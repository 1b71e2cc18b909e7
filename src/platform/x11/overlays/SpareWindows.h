#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <xcb/xcb.h>

#include "platform/x11/painting/PictureCache.h"

namespace quorvel::x11 {

class Connection;

// Windows that were closed, kept unmapped for those to come. A compositor asks two dozen things about a window that it
// has not seen before, one after the other; of a window that it knows it asks one or two.
class SpareWindows {
public:
    // Lets clicks through; is cut to its content if it cannot blend, and only then.
    struct Window {
        xcb_window_t id = XCB_WINDOW_NONE;
        Blending blending = Blending::unavailable;
    };

    explicit SpareWindows(Connection& connection) : connection(connection) {}
    SpareWindows(const SpareWindows&) = delete;
    SpareWindows& operator=(const SpareWindows&) = delete;
    ~SpareWindows() { destroyAll(); }

    // Takes the window off the screen, for good where there are enough of them.
    void keep(const Window& window);

    // The one that has been hidden for longest.
    std::optional<Window> take(Blending blending);

    void destroyAll();

private:
    static constexpr std::size_t mostWindows = 64; // letters and borders of all windows, and panels

    Connection& connection;
    std::vector<Window> windows;
};

} // namespace quorvel::x11
