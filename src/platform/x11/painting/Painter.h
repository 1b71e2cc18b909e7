#pragma once

#include "base/DrawList.h"
#include "platform/x11/painting/PixelImage.h"
#include "platform/x11/painting/TextLayouts.h"

namespace quorvel::x11 {

// Draws lists whose unit is the pixel, as aligned by alignedToPixels().
class Painter {
public:
    explicit Painter(const TextLayouts& layouts) : layouts(layouts) {}

    // Draws over what the image holds.
    void paint(PixelImage& image, const DrawList& list) const;

private:
    const TextLayouts& layouts;
};

} // namespace quorvel::x11
