#pragma once

#include <vector>

#include "base/DrawList.h"
#include "platform/x11/painting/PixelImage.h"

namespace quorvel::x11 {

// A piece of one axis: the pixels [place, place + length) of the whole view, drawn as `shortLength` pixels from
// `shortPlace` of the collapsed one.
struct AxisSegment {
    int place = 0;
    int length = 0;
    int shortPlace = 0;
    int shortLength = 0; // `length`, or 1 for a longer piece along which nothing changes

    bool isStretched() const { return shortLength != length; }
    bool operator==(const AxisSegment&) const = default;
};

// A list in pixels without what repeats itself. Along the straight edges of large shapes, and inside them, every pixel
// is like its neighbour; one of them stands for all.
//
//     ╭──────────────────────────╮           ╭───────╮
//     │                          │           │       │
//     │           ┌───┐          │           │ ┌───┐ │
//     │           │ A │          │    →      │ │ A │ │
//     │           └───┘          │           │ └───┘ │
//     │                          │           ╰───────╯
//     ╰──────────────────────────╯
//
// Windows of different sizes with the same label collapse to the same list, and it takes a fraction of the time to
// draw and to send to the X server.
struct CollapsedList {
    DrawList list;
    PixelSize size;
    std::vector<AxisSegment> columns;
    std::vector<AxisSegment> rows;
};

CollapsedList collapsed(const DrawList& list, PixelSize size);

} // namespace quorvel::x11
