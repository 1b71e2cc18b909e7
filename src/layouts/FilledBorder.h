#pragma once

#include "base/DrawList.h"

namespace quorvel {

// A filled rounded rectangle with a border that lies wholly inside it.
//
//   ╭───────────╮ ─┐ rect
//   │╭╌╌╌╌╌╌╌╌╌╮│ ─┤ the border's middle, half its width further in
//   │╎         ╎│
struct FilledBorder {
    ViewRect rect;
    double cornerRadius = 0.0;
    CornerStyle cornerStyle = CornerStyle::circular;
    Backing backing = Backing::open;
    Color fill;
    Stroke border; // none where its width is not above 0

    void appendTo(DrawList& list) const;
};

} // namespace quorvel
