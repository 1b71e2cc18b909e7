#pragma once

#include <vector>

#include "base/DrawList.h"
#include "base/Geometry.h"

namespace quorvel {

class SystemColors;

// The small picture of a layout.
//
//   ╭────────────╮  48 × 48 points
//   │ ┌───┐┌───┐ │
//   │ │   ││   │ │  the frames in an area 6 points further in
//   │ └───┘└───┘ │
//   ╰────────────╯
namespace layoutThumbnail {

// Points, origin at the bottom left of the picture, y up, as layouts have it.
struct PictureSpace {};
using PictureRect = Rect<PictureSpace>;

inline constexpr Size size{48.0, 48.0};

// Where the frames lie in the picture; four cells for a layout without frames.
std::vector<PictureRect> frameRects(const std::vector<UnitRect>& frames);

DrawList drawing(const std::vector<UnitRect>& frames, const SystemColors& systemColors);

} // namespace layoutThumbnail

} // namespace quorvel
