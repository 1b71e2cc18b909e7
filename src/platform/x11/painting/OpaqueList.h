#pragma once

#include "base/DrawList.h"

namespace quorvel::x11 {

// The list, in pixels, as it is drawn in a window that cannot blend with what is behind it and is therefore cut to
// what is drawn. Shadows outside go, open shapes become rings, solid ones and strokes become opaque over a dark
// neutral colour, and text that stands free gets a dark plate.
DrawList withoutBlending(const DrawList& list);

} // namespace quorvel::x11
