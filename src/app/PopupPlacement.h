#pragma once

#include "base/Geometry.h"
#include "base/LabelPosition.h"

namespace quorvel {

// Room between a popup and the edges of the visible frame.
inline constexpr double popupMargin = 20.0;

// A popup at an anchor of the visible frame, on whole points. One that is too large keeps its top left corner on
// screen.
ScreenRect popupRect(LabelPosition anchor, const ScreenRect& visibleFrame, const Size& size);

// A popup that goes with another one: below it or, where there is no room, above it, to its right or to its left. Where
// there is none on any side it covers a part of the other one rather than leave the screen.
//
//            ┌────────┐
//            │ above  │
//   ┌──────┐ ╔════════╗ ┌───────┐
//   │ left │ ║ other  ║ │ right │
//   └──────┘ ╚════════╝ └───────┘
//            ┌────────┐
//            │ below  │
//            └────────┘
ScreenRect companionRect(LabelPosition anchor, const ScreenRect& visibleFrame, const Size& size,
                         const ScreenRect& other);

} // namespace quorvel
