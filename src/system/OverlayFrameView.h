#pragma once

#include "base/Color.h"
#include "base/DrawList.h"
#include "base/Geometry.h"

namespace quorvel {

struct FrameAppearance;
class SystemColors;

// A rounded outline just inside the edges of its window, never filled, with a soft glow on demand.
//
//   +--------------------+  bounds
//   |  /--------------\  |
//   |  |              |<-+-- stroke of width borderWidth, its outer edge on the bounds
//   |  \--------------/  |
//   +--------------------+
struct OverlayFrameView {
    explicit OverlayFrameView(const SystemColors& systemColors);
    OverlayFrameView(const SystemColors& systemColors, const FrameAppearance& appearance);

    void setAppearance(const FrameAppearance& appearance);

    DrawList drawList(const Size& bounds) const;

    Color borderColor; // also that of the glow
    double borderWidth = 3.0;
    double cornerRadius = 8.0;
    bool glow = true;
};

} // namespace quorvel
