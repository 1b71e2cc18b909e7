#pragma once

#include <cstddef>
#include <map>

#include <xcb/xcb.h>

#include "support/PixelRect.h"

namespace quorvel::bench {

// The children of the root as events tell of them, so that nobody has to ask the server while something is measured.
class TopLevels {
public:
    // Reads those that there are. The events of the root's substructure must be selected already.
    void read(xcb_connection_t* xcb, xcb_window_t root);

    // Takes in one event.
    void follow(const xcb_generic_event_t& event);

    // Empty for a window that is unknown.
    xtest::PixelRect frameOf(xcb_window_t window) const;

    // Those that a person can see: others are helpers.
    std::size_t visibleCount() const;

    static bool isLargeEnoughToSee(const xtest::PixelRect& frame);

private:
    struct TopLevel {
        xtest::PixelRect frame;
        bool isMapped = false;
    };

    std::map<xcb_window_t, TopLevel> windows;
    xcb_window_t rootWindow = XCB_NONE;
};

} // namespace quorvel::bench
