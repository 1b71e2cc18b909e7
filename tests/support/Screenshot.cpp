#include "support/Screenshot.h"

#include <cstring>
#include <memory>

#include <cairo.h>
#include <fmt/format.h>

#include "support/Patience.h"

namespace quorvel::xtest {
namespace {

constexpr std::uint32_t colorMask = 0xFFFFFF;

struct DestroySurface {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};

PixelRect wholeScreen(const XClient& client)
{
    return {0, 0, client.screen().width_in_pixels, client.screen().height_in_pixels};
}

} // namespace

Screenshot::Screenshot(XClient& client) : Screenshot(client, wholeScreen(client)) {}

Screenshot::Screenshot(XClient& client, const PixelRect& part) : area(part)
{
    const auto cookie =
        xcb_get_image(client.connection(), XCB_IMAGE_FORMAT_Z_PIXMAP, client.root(), static_cast<std::int16_t>(part.x),
                      static_cast<std::int16_t>(part.y), static_cast<std::uint16_t>(part.width),
                      static_cast<std::uint16_t>(part.height), ~0U);
    const XReply<xcb_get_image_reply_t> image(xcb_get_image_reply(client.connection(), cookie, nullptr));
    const auto count = static_cast<std::size_t>(part.width) * static_cast<std::size_t>(part.height);
    if (!image || image->length < count) {
        throw HarnessError("cannot read the display's pixels");
    }
    pixels.resize(count);
    std::memcpy(pixels.data(), xcb_get_image_data(image.get()), count * sizeof(std::uint32_t));
}

std::uint32_t Screenshot::pixel(int x, int y) const
{
    const int column = x - area.x;
    const int row = y - area.y;
    if (column < 0 || row < 0 || column >= area.width || row >= area.height) {
        throw HarnessError(fmt::format("({}, {}) is outside the picture", x, y));
    }
    return pixels[static_cast<std::size_t>(row) * static_cast<std::size_t>(area.width) +
                  static_cast<std::size_t>(column)] &
           colorMask;
}

void Screenshot::writePng(const std::filesystem::path& file) const
{
    std::filesystem::create_directories(file.parent_path());
    const std::unique_ptr<cairo_surface_t, DestroySurface> surface(
        cairo_image_surface_create(CAIRO_FORMAT_RGB24, area.width, area.height));
    const auto stride = static_cast<std::size_t>(cairo_image_surface_get_stride(surface.get()));
    const auto rowSize = static_cast<std::size_t>(area.width);
    unsigned char* rows = cairo_image_surface_get_data(surface.get());
    for (std::size_t row = 0; row < static_cast<std::size_t>(area.height); ++row) {
        std::memcpy(rows + row * stride, pixels.data() + row * rowSize, rowSize * sizeof(std::uint32_t));
    }
    cairo_surface_mark_dirty(surface.get());
    if (cairo_surface_write_to_png(surface.get(), file.c_str()) != CAIRO_STATUS_SUCCESS) {
        throw HarnessError(fmt::format("cannot write {}", file.string()));
    }
}

} // namespace quorvel::xtest
