#pragma once

#include "platform/x11/painting/CairoHandles.h"
#include "platform/x11/painting/PixelImage.h"

namespace quorvel::x11 {

// A surface whose pixels are those of the image, which must outlive it. Flush it before reading the image.
inline CairoSurface imageSurface(PixelImage& image)
{
    auto* const bytes = reinterpret_cast<unsigned char*>(image.pixels.data());
    return CairoSurface(cairo_image_surface_create_for_data(bytes, CAIRO_FORMAT_ARGB32, image.size.width,
                                                            image.size.height,
                                                            image.size.width * static_cast<int>(sizeof(Pixel))));
}

} // namespace quorvel::x11
