#pragma once

#include "base/DrawList.h"
#include "platform/x11/painting/PixelImage.h"
#include "platform/x11/painting/TextLayouts.h"

namespace quorvel::x11 {

// Draws lists whose unit is the pixel, as aligned by alignedToPixels().
class Painter {
public:
    explicit Painter(const TextLayouts& layouts) : layouts(layouts) {}

    // Draws over what the image holds. Texts are set in the sizes of their fonts and then scaled, so that each of them
    // is cut only where it would be without that: fonts of other sizes are not wider or narrower in proportion.
    void paint(PixelImage& image, const DrawList& list, double textScale = 1.0) const;

private:
    const TextLayouts& layouts;
};

} // namespace quorvel::x11
