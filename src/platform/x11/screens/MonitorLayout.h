#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/Screens.h"
#include "platform/x11/RootGeometry.h"
#include "platform/x11/screens/ScreenCoordinates.h"

namespace quorvel::x11 {

struct Monitor {
    std::uint64_t id = 0;
    RootRect area;

    bool operator==(const Monitor&) const = default;
};

// What a panel keeps for itself: strips along the edges of the root window, each over a range of pixels along its edge,
// both ends included.
struct Strut {
    struct Edge {
        double depth = 0.0;
        double start = 0.0;
        double end = 0.0;

        bool operator==(const Edge&) const = default;
    };
    Edge left;
    Edge right;
    Edge top;
    Edge bottom;

    bool operator==(const Strut&) const = default;
};

// Reads the values of _NET_WM_STRUT_PARTIAL or, with four values only, of _NET_WM_STRUT.
std::optional<Strut> strutOf(std::span<const std::uint32_t> values, Size root);

// What panels leave of a monitor.
RootRect workArea(const RootRect& monitor, std::span<const Strut> struts, Size root);

// What of `area` lies in the rectangles that the window manager calls free (its _GTK_WORKAREAS: one a monitor).
RootRect limitedToWorkArea(const RootRect& area, const RootRect& monitor, std::span<const RootRect> workAreas);

struct MonitorWithWorkArea {
    Monitor monitor;
    RootRect workArea;
};

// Everything that the screens of the portable program are made of.
struct ScreenLayout {
    std::vector<Screen> screens;
    ScreenCoordinates coordinates;

    bool operator==(const ScreenLayout&) const = default;
};

// The screens of these monitors, in their order. A screen's frame leaves out what panels keep at the left, right and
// bottom of its monitor; its visible frame leaves out also what they keep at its top:
//
//      +-------------------+  monitor = frame's top
//      |  |   top panel |  |
//      |l +-------------+ r|  <- visible frame's top
//      |  |   visible   |  |
//      +--+-------------+--+  <- both frames' bottom
//      |   bottom panel    |
//      +-------------------+
//
// The portable program counts from the frame's left edge and takes the difference of the two heights for what lies
// above the visible frame. This way both come out right with panels on any side.
ScreenLayout screenLayout(std::span<const MonitorWithWorkArea> monitors);

} // namespace quorvel::x11
