#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "app/ArrowKey.h"
#include "base/Geometry.h"
#include "platform/Screens.h"
#include "system/WindowInfo.h"

namespace quorvel {

// A step of the window that is being moved or resized.
struct SnapStep {
    AxRect before; // where the window stood before the key
    AxRect after;  // where the key takes it
    ArrowKey key = ArrowKey::left;
    ArrowEffect effect = ArrowEffect::move;
};

// Where a step ends that an edge of another window attracts.
struct Snap {
    AxRect rect;       // of the window
    AxRect targetEdge; // the whole edge of the other window; of no width or no height

    bool operator==(const Snap&) const = default;
};

// What can attract a window.
struct SnapNeighbours {
    const std::vector<WindowInfo>& windows;
    std::optional<std::size_t> ownEntry; // the moved window in it, which may have gone elsewhere since
    const std::vector<Screen>& screens;  // the primary one first
};

// The nearest edge of a window on the same screen, at most `threshold` points away from an edge of the step's end, of
// equally near ones the first. It has to lead at least a point further in the key's direction than the window stood
// before, so that a window can be moved away from an edge by any step. Windows are passed by that do not lie beside
// the end:
//
//        +--------+
//        |   A    |    +-------+
//        +--------+    | after | -->    for a horizontal key A attracts nothing, B does with both of its edges
//       +--------+     +-------+
//       |   B    |
//       +--------+
std::optional<Snap> searchSnap(const SnapStep& step, const SnapNeighbours& neighbours, double threshold);

} // namespace quorvel
