#pragma once

#include <vector>

#include "layouts/FittedDrawing.h"
#include "layouts/LayoutShortcutEntry.h"
#include "layouts/ViewEnvironment.h"

namespace quorvel {

// The list of digits that jump to layouts.
//
//   ╭────────────────────────╮
//   │ Jump to layout         │
//   │ ▐1▌ Full Screen        │
//   │ ▐2▌ Centered           │
//   ╰────────────────────────╯
struct LayoutShortcutsLegendView {
    std::vector<LayoutShortcutEntry> entries;

    FittedDrawing body(const ViewEnvironment& environment) const;
};

} // namespace quorvel
