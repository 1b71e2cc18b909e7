#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "base/Geometry.h"
#include "base/LabelPosition.h"
#include "layouts/VisibleWindowInfo.h"
#include "platform/Screens.h"

namespace quorvel {

// Where the labels of windows go. A label is sized by counting characters instead of measuring text, so that its place
// can be decided before there is anything to measure.

// The size of a label with a letter of `fontSize` points, wide enough for its longest text.
Size windowLabelSize(double fontSize, std::string_view label, const std::optional<VisibleWindowInfo>& info);

// A rectangle of `size` at an anchor of `bounds`, `margin` points in from the edges that the anchor names.
//
//   topLeft      top      topRight
//   leading     center    trailing
//   bottomLeft  bottom  bottomRight
ScreenRect anchoredRect(LabelPosition anchor, const ScreenRect& bounds, const Size& size, double margin);

// The same for the label of a window, 16 points in.
ScreenRect labelRect(LabelPosition anchor, const ScreenRect& bounds, const Size& size);

// All nine anchors in the order in which they are tried: the preferred one, its neighbours, the rest.
std::span<const LabelPosition> anchorCandidates(LabelPosition preferred);

// True if one screen's visible frame holds at least four fifths of the rectangle.
bool isOnScreen(const ScreenRect& rect, std::span<const Screen> screens);

// The first candidate whose label is on screen and clear of the occupied rectangles; the preferred anchor if there is
// none. Rectangles that only touch are not clear of each other.
LabelPosition resolveAnchor(LabelPosition preferred, const ScreenRect& bounds, const Size& size,
                            std::span<const ScreenRect> occupied, std::span<const Screen> screens);

} // namespace quorvel
