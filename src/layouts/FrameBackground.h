#pragma once

#include "base/DrawList.h"
#include "settings/AppearanceSettings.h"

namespace quorvel {

// The frame of a layout or around a window, filling a view of `size`. `fallbackColor` is the border's colour where the
// stored one cannot be read, and at half opacity the fill's.
void appendFrameBackground(DrawList& list, const OverlayAppearance& appearance, const Size& size,
                           const Color& fallbackColor);

} // namespace quorvel
