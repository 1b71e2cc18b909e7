#pragma once

#include <functional>

#include <cairo.h>

#include "base/Geometry.h"
#include "platform/x11/painting/GaussianBlur.h"
#include "platform/x11/painting/PixelImage.h"

namespace quorvel::x11 {

// How far, in whole pixels, a shadow reaches past what casts it.
int shadowExtent(double blurRadius);

// The blurred coverage of something drawn.
class ShadowMask {
public:
    // `paintInk` draws what casts the shadow, which lies within `ink`; only its coverage counts. The mask holds what
    // matters to an image of that size.
    ShadowMask(const ViewRect& ink, PixelSize imageSize, double blurRadius,
               const std::function<void(cairo_t*)>& paintInk);

    // Lays the context's current source through the mask.
    void paint(cairo_t* context) const;

private:
    int x = 0;
    int y = 0;
    CoverageMask mask;
};

} // namespace quorvel::x11
