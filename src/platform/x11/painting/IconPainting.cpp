#include "platform/x11/painting/IconPainting.h"

#include <algorithm>
#include <cstddef>

#include "platform/x11/painting/CairoHandles.h"
#include "platform/x11/painting/ImageSurface.h"

namespace quorvel::x11 {

Color readableColor(const PixelImage& background)
{
    constexpr Color dark = Color::bytes(46, 52, 54);
    constexpr Color light = Color::bytes(242, 242, 242);
    double sum = 0.0;
    for (const Pixel pixel : background.pixels) {
        const auto component = [&](unsigned shift) { return static_cast<double>((pixel >> shift) & 0xFFU); };
        sum += 0.299 * component(16) + 0.587 * component(8) + 0.114 * component(0);
    }
    const double brightness = sum / static_cast<double>(std::max(background.pixels.size(), std::size_t{1}));
    return brightness > 127.5 ? dark : light;
}

void paintIcon(PixelImage& image, const std::filesystem::path& file, const std::optional<Color>& color)
{
    const CairoSurface icon(cairo_image_surface_create_from_png(file.c_str()));
    const double width = cairo_image_surface_get_width(icon.get());
    const double height = cairo_image_surface_get_height(icon.get());
    if (cairo_surface_status(icon.get()) != CAIRO_STATUS_SUCCESS || width <= 0.0 || height <= 0.0) {
        return;
    }
    const CairoSurface surface = imageSurface(image);
    const CairoContext context(cairo_create(surface.get()));
    const double scale = std::min(image.size.width / width, image.size.height / height);
    cairo_translate(context.get(), (image.size.width - width * scale) / 2.0,
                    (image.size.height - height * scale) / 2.0);
    cairo_scale(context.get(), scale, scale);
    if (color) {
        cairo_set_source_rgba(context.get(), color->red, color->green, color->blue, color->alpha);
        cairo_mask_surface(context.get(), icon.get(), 0.0, 0.0);
    } else {
        cairo_set_source_surface(context.get(), icon.get(), 0.0, 0.0);
        cairo_paint(context.get());
    }
    cairo_surface_flush(surface.get());
}

} // namespace quorvel::x11
