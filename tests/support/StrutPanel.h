#pragma once

#include <cstddef>
#include <ostream>
#include <vector>

#include "support/Monitors.h"
#include "support/TestWindow.h"

namespace quorvel::xtest {

enum class Side { left, right, top, bottom };

std::ostream& operator<<(std::ostream& stream, Side side);

// The index of the monitor that reaches furthest to the side. What a panel elsewhere reserves cannot be told: it counts
// from the root's edge, so it would cover the monitors in between.
std::size_t outermost(const std::vector<Monitor>& monitors, Side side);

// A dock along one side of a monitor that reserves its thickness there.
class StrutPanel {
public:
    enum class Reservation {
        partial, // _NET_WM_STRUT and _NET_WM_STRUT_PARTIAL: only beside the panel itself
        plain,   // _NET_WM_STRUT alone: the whole edge of the root
    };

    // The thickness is measured from the monitor's edge. Struts themselves count from the root's edge.
    StrutPanel(const XServer& server, const PixelRect& monitor, Side side, int thickness,
               Reservation reservation = Reservation::partial);

    xcb_window_t id() const { return window.id(); }
    PixelRect rect() const { return place; }

    // What the panel leaves of its monitor.
    PixelRect remainder() const { return rest; }

    // The panel ends; what it reserved is free again.
    void vanish() { window.vanish(); }

private:
    PixelRect place;
    PixelRect rest;
    TestWindow window;
};

} // namespace quorvel::xtest
