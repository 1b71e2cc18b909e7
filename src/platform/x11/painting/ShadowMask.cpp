#include "platform/x11/painting/ShadowMask.h"

#include <algorithm>
#include <cmath>

#include "platform/x11/painting/CairoHandles.h"

namespace quorvel::x11 {

namespace {

// A blur radius reaches to about two standard deviations, where the eye sees a shadow end.
double standardDeviation(double blurRadius)
{
    return blurRadius / 2.0;
}

// Cairo wants rows of coverage to start at multiples of four bytes.
int paddedWidth(int width)
{
    constexpr int alignment = 4;
    return (width + alignment - 1) / alignment * alignment;
}

CairoSurface coverageSurface(const CoverageMask& mask)
{
    // Cairo only writes to surfaces that are drawn on, and takes them without const all the same.
    auto* const bytes = const_cast<unsigned char*>(mask.values.data());
    return CairoSurface(
        cairo_image_surface_create_for_data(bytes, CAIRO_FORMAT_A8, mask.width, mask.height, mask.width));
}

} // namespace

int shadowExtent(double blurRadius)
{
    return blurExtent(standardDeviation(blurRadius));
}

ShadowMask::ShadowMask(const ViewRect& ink, PixelSize imageSize, double blurRadius,
                       const std::function<void(cairo_t*)>& paintInk)
{
    const int extent = shadowExtent(blurRadius);
    // Ink farther than the extent from the image casts nothing on it.
    const int left = std::max(static_cast<int>(std::floor(ink.minX())), -extent) - extent;
    const int top = std::max(static_cast<int>(std::floor(ink.minY())), -extent) - extent;
    const int right = std::min(static_cast<int>(std::ceil(ink.maxX())), imageSize.width + extent) + extent;
    const int bottom = std::min(static_cast<int>(std::ceil(ink.maxY())), imageSize.height + extent) + extent;
    if (right <= left || bottom <= top) {
        return;
    }
    x = left;
    y = top;
    mask.width = paddedWidth(right - left);
    mask.height = bottom - top;
    mask.values.resize(static_cast<std::size_t>(mask.width) * static_cast<std::size_t>(mask.height));
    {
        const CairoSurface surface = coverageSurface(mask);
        const CairoContext context(cairo_create(surface.get()));
        cairo_translate(context.get(), -x, -y);
        paintInk(context.get());
        cairo_surface_flush(surface.get());
    }
    blur(mask, standardDeviation(blurRadius));
}

void ShadowMask::paint(cairo_t* context) const
{
    if (!mask.values.empty()) {
        const CairoSurface surface = coverageSurface(mask);
        cairo_mask_surface(context, surface.get(), x, y);
    }
}

} // namespace quorvel::x11
