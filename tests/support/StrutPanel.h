#pragma once

#include "support/Monitors.h"
#include "support/TestWindow.h"

namespace quorvel::xtest {

enum class Side { left, right, top, bottom };

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

    // The panel ends; what it reserved is free again.
    void vanish() { window.vanish(); }

private:
    PixelRect place;
    TestWindow window;
};

} // namespace quorvel::xtest
