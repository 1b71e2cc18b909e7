#include "e2e/tour/Painting.h"

#include <functional>
#include <memory>
#include <numbers>

#include <cairo-xcb.h>

namespace quorvel::tour {
namespace {

using xtest::PixelRect;

struct DestroySurface {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
struct DestroyContext {
    void operator()(cairo_t* context) const { cairo_destroy(context); }
};
struct DestroyPattern {
    void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
};

// Paints a pixmap and makes it the window's background, which the server repaints by itself from then on.
xcb_pixmap_t paintBackground(xtest::XClient& client, xcb_window_t window, int width, int height,
                             const std::function<void(cairo_t*)>& paint)
{
    auto* link = client.connection();
    auto visuals = xcb_screen_allowed_depths_iterator(&client.screen());
    while (visuals.data->depth != client.screen().root_depth) {
        xcb_depth_next(&visuals);
    }
    auto* visual = xcb_depth_visuals_iterator(visuals.data).data;
    const xcb_pixmap_t pixmap = xcb_generate_id(link);
    xcb_create_pixmap(link, client.screen().root_depth, pixmap, window, static_cast<std::uint16_t>(width),
                      static_cast<std::uint16_t>(height));
    const std::unique_ptr<cairo_surface_t, DestroySurface> surface(
        cairo_xcb_surface_create(link, pixmap, visual, width, height));
    const std::unique_ptr<cairo_t, DestroyContext> context(cairo_create(surface.get()));
    paint(context.get());
    cairo_surface_finish(surface.get());
    xcb_change_window_attributes(link, window, XCB_CW_BACK_PIXMAP, &pixmap);
    xcb_clear_area(link, 0, window, 0, 0, 0, 0);
    client.sync();
    return pixmap;
}

void paintHill(cairo_t* context, const PixelRect& monitor, double top, double sway, double red, double green,
               double blue)
{
    const double left = monitor.x;
    const double right = monitor.x + monitor.width;
    const double bottom = monitor.y + monitor.height;
    const double width = monitor.width;
    const double y = monitor.y + monitor.height * top;
    const double rise = monitor.height * sway;
    cairo_move_to(context, left, bottom);
    cairo_line_to(context, left, y);
    cairo_curve_to(context, left + width * 0.3, y - rise, left + width * 0.6, y + rise, right, y - rise * 0.5);
    cairo_line_to(context, right, bottom);
    cairo_close_path(context);
    cairo_set_source_rgb(context, red, green, blue);
    cairo_fill(context);
}

void paintLandscape(cairo_t* context, const PixelRect& monitor)
{
    const std::unique_ptr<cairo_pattern_t, DestroyPattern> sky(
        cairo_pattern_create_linear(0, monitor.y, 0, monitor.y + monitor.height));
    cairo_pattern_add_color_stop_rgb(sky.get(), 0.0, 0.20, 0.33, 0.48);
    cairo_pattern_add_color_stop_rgb(sky.get(), 0.55, 0.55, 0.66, 0.74);
    cairo_pattern_add_color_stop_rgb(sky.get(), 1.0, 0.93, 0.84, 0.74);
    cairo_rectangle(context, monitor.x, monitor.y, monitor.width, monitor.height);
    cairo_set_source(context, sky.get());
    cairo_fill(context);
    paintHill(context, monitor, 0.66, 0.10, 0.44, 0.56, 0.63);
    paintHill(context, monitor, 0.76, -0.08, 0.30, 0.43, 0.52);
    paintHill(context, monitor, 0.88, 0.06, 0.17, 0.28, 0.37);
}

} // namespace

void paintRoot(xtest::XClient& client, const std::vector<PixelRect>& monitors)
{
    const xcb_pixmap_t wallpaper = paintBackground(client, client.root(), client.screen().width_in_pixels,
                                                   client.screen().height_in_pixels, [&](cairo_t* context) {
                                                       for (const PixelRect& monitor : monitors) {
                                                           paintLandscape(context, monitor);
                                                       }
                                                   });
    for (const char* property : {"_XROOTPMAP_ID", "ESETROOT_PMAP_ID"}) {
        client.setProperty(client.root(), property, XCB_ATOM_PIXMAP, {wallpaper});
    }
}

void paintBar(xtest::XClient& client, xcb_window_t bar, const PixelRect& rect)
{
    paintBackground(client, bar, rect.width, rect.height, [&](cairo_t* context) {
        cairo_set_source_rgb(context, 0.11, 0.13, 0.16);
        cairo_paint(context);
        cairo_set_source_rgb(context, 0.91, 0.93, 0.95);
        cairo_set_font_size(context, 14);
        cairo_select_font_face(context, "Inter", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_BOLD);
        const double baseline = rect.height / 2.0 + 5;
        cairo_arc(context, 22, rect.height / 2.0, 5, 0, 2 * std::numbers::pi);
        cairo_fill(context);
        cairo_move_to(context, 36, baseline);
        cairo_show_text(context, "Desktop");
        const char* clock = "Sat 21 Nov   10:24";
        cairo_text_extents_t extents;
        cairo_text_extents(context, clock, &extents);
        cairo_move_to(context, (rect.width - extents.width) / 2.0, baseline);
        cairo_show_text(context, clock);
    });
}

} // namespace quorvel::tour
