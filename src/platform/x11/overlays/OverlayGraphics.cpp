#include "platform/x11/overlays/OverlayGraphics.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <optional>
#include <string_view>

#include <xcb/shape.h>

#include "platform/x11/Connection.h"
#include "platform/x11/WindowNames.h"

namespace quorvel::x11 {

namespace {

constexpr std::uint8_t alphaDepth = 32;

// A true-colour visual whose pixels are laid out as Pixel is.
std::optional<xcb_visualid_t> findVisual(const xcb_screen_t& screen)
{
    for (auto depths = xcb_screen_allowed_depths_iterator(&screen); depths.rem > 0; xcb_depth_next(&depths)) {
        if (depths.data->depth != alphaDepth) {
            continue;
        }
        for (auto visuals = xcb_depth_visuals_iterator(depths.data); visuals.rem > 0; xcb_visualtype_next(&visuals)) {
            const auto& visual = *visuals.data;
            if (visual._class == XCB_VISUAL_CLASS_TRUE_COLOR && visual.red_mask == 0xFF0000 &&
                visual.green_mask == 0xFF00 && visual.blue_mask == 0xFF) {
                return visual.visual_id;
            }
        }
    }
    return std::nullopt;
}

bool hasOwnByteOrder(xcb_connection_t* connection)
{
    constexpr auto own =
        std::endian::native == std::endian::little ? XCB_IMAGE_ORDER_LSB_FIRST : XCB_IMAGE_ORDER_MSB_FIRST;
    return xcb_get_setup(connection)->image_byte_order == own;
}

xcb_rectangle_t xcbRectangle(const PixelRect& rect)
{
    return {static_cast<std::int16_t>(rect.x), static_cast<std::int16_t>(rect.y),
            static_cast<std::uint16_t>(rect.width), static_cast<std::uint16_t>(rect.height)};
}

} // namespace

std::expected<std::unique_ptr<OverlayGraphics>, std::string> OverlayGraphics::create(Connection& connection)
{
    const auto visual = findVisual(connection.screen());
    if (!visual || !hasOwnByteOrder(connection.xcb()) || connection.extension(&xcb_shape_id) == nullptr) {
        return std::unexpected("This X display cannot show windows with transparency and shape.");
    }
    return std::unique_ptr<OverlayGraphics>(new OverlayGraphics(connection, *visual));
}

OverlayGraphics::OverlayGraphics(Connection& connection, xcb_visualid_t visual)
    : connection(connection),
      visual(visual),
      colormap(xcb_generate_id(connection.xcb())),
      context(xcb_generate_id(connection.xcb())),
      maximumRequestBytes(std::size_t{4} * xcb_get_maximum_request_length(connection.xcb())),
      compositorShadow(connection.atom("_COMPTON_SHADOW"))
{
    auto* const xcb = connection.xcb();
    xcb_create_colormap(xcb, XCB_COLORMAP_ALLOC_NONE, colormap, connection.root(), visual);
    // A graphics context is made for a depth, which some drawable must show.
    const auto sample = xcb_generate_id(xcb);
    xcb_create_pixmap(xcb, alphaDepth, sample, connection.root(), 1, 1);
    const std::uint32_t noExposures = 0;
    xcb_create_gc(xcb, context, sample, XCB_GC_GRAPHICS_EXPOSURES, &noExposures);
    xcb_free_pixmap(xcb, sample);
}

OverlayGraphics::~OverlayGraphics()
{
    xcb_free_gc(connection.xcb(), context);
    xcb_free_colormap(connection.xcb(), colormap);
}

xcb_window_t OverlayGraphics::createWindow(const PixelRect& rect)
{
    const auto window = xcb_generate_id(connection.xcb());
    xcb_create_window_value_list_t values{};
    values.background_pixel = 0;
    values.border_pixel = 0;
    values.override_redirect = 1;
    values.colormap = colormap;
    const auto place = xcbRectangle(rect);
    xcb_create_window_aux(connection.xcb(), alphaDepth, window, connection.root(), place.x, place.y, place.width,
                          place.height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, visual,
                          XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_COLORMAP,
                          &values);
    setProperties(window);
    return window;
}

void OverlayGraphics::setProperties(xcb_window_t window)
{
    auto* const xcb = connection.xcb();
    const auto& atoms = connection.atoms();
    const auto setText = [&](xcb_atom_t name, xcb_atom_t type, std::string_view text) {
        xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, window, name, type, 8, static_cast<std::uint32_t>(text.size()),
                            text.data());
    };
    const auto setValue = [&](xcb_atom_t name, xcb_atom_t type, std::uint32_t value) {
        xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, window, name, type, 32, 1, &value);
    };
    setText(XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, windowNames::instanceAndClass);
    setText(atoms.netWmName, atoms.utf8String, windowNames::title);
    setValue(atoms.netWmWindowType, XCB_ATOM_ATOM, atoms.netWmWindowTypeNotification);
    setValue(compositorShadow, XCB_ATOM_CARDINAL, 0);
}

void OverlayGraphics::place(xcb_window_t window, const PixelRect& rect)
{
    const auto place = xcbRectangle(rect);
    const xcb_configure_window_value_list_t values{.x = place.x,
                                                   .y = place.y,
                                                   .width = place.width,
                                                   .height = place.height,
                                                   .border_width = 0,
                                                   .sibling = XCB_WINDOW_NONE,
                                                   .stack_mode = XCB_STACK_MODE_ABOVE};
    xcb_configure_window_aux(
        connection.xcb(), window,
        XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, &values);
}

void OverlayGraphics::ignoreMouse(xcb_window_t window)
{
    xcb_shape_rectangles(connection.xcb(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, XCB_CLIP_ORDERING_UNSORTED, window, 0,
                         0, 0, nullptr);
}

void OverlayGraphics::cut(xcb_window_t window, const std::vector<PixelRect>& region)
{
    std::vector<xcb_rectangle_t> rectangles(region.size());
    std::ranges::transform(region, rectangles.begin(), xcbRectangle);
    xcb_shape_rectangles(connection.xcb(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, XCB_CLIP_ORDERING_UNSORTED, window,
                         0, 0, static_cast<std::uint32_t>(rectangles.size()), rectangles.data());
}

void OverlayGraphics::removeCut(xcb_window_t window)
{
    xcb_shape_mask(connection.xcb(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, window, 0, 0, XCB_PIXMAP_NONE);
}

void OverlayGraphics::clear(xcb_window_t window)
{
    lastRequest = xcb_clear_area(connection.xcb(), 0, window, 0, 0, 0, 0).sequence;
}

std::uint32_t OverlayGraphics::draw(xcb_window_t window, const PaintPlan& plan)
{
    drawFills(window, plan.fills);
    for (const auto& piece : plan.pieces) {
        drawPiece(window, *plan.picture, piece);
    }
    return lastRequest;
}

void OverlayGraphics::drawFills(xcb_window_t window, const std::vector<PaintPlan::Fill>& fills)
{
    std::vector<xcb_rectangle_t> rectangles;
    for (auto first = fills.begin(); first != fills.end();) {
        const auto next =
            std::find_if(first, fills.end(), [&](const auto& fill) { return fill.pixel != first->pixel; });
        rectangles.clear();
        std::transform(first, next, std::back_inserter(rectangles),
                       [](const auto& fill) { return xcbRectangle(fill.rect); });
        xcb_change_gc(connection.xcb(), context, XCB_GC_FOREGROUND, &first->pixel);
        lastRequest = xcb_poly_fill_rectangle(connection.xcb(), window, context,
                                              static_cast<std::uint32_t>(rectangles.size()), rectangles.data())
                          .sequence;
        first = next;
    }
}

// In as many requests as their greatest length asks for; usually one.
void OverlayGraphics::drawPiece(xcb_window_t window, const PixelImage& picture, const PaintPlan::Piece& piece)
{
    const auto& rect = piece.rect;
    const std::size_t rowBytes = static_cast<std::size_t>(rect.width) * sizeof(Pixel);
    const auto rowsPerRequest = static_cast<int>((maximumRequestBytes - sizeof(xcb_put_image_request_t)) / rowBytes);
    std::vector<Pixel> pixels;
    for (int top = 0; top < rect.height; top += rowsPerRequest) {
        const int rows = std::min(rowsPerRequest, rect.height - top);
        pixels.clear();
        for (int y = top; y < top + rows; ++y) {
            const auto row =
                picture.row(piece.pictureY + y)
                    .subspan(static_cast<std::size_t>(piece.pictureX), static_cast<std::size_t>(rect.width));
            pixels.insert(pixels.end(), row.begin(), row.end());
        }
        lastRequest = xcb_put_image(connection.xcb(), XCB_IMAGE_FORMAT_Z_PIXMAP, window, context,
                                    static_cast<std::uint16_t>(rect.width), static_cast<std::uint16_t>(rows),
                                    static_cast<std::int16_t>(rect.x), static_cast<std::int16_t>(rect.y + top), 0,
                                    alphaDepth, static_cast<std::uint32_t>(pixels.size() * sizeof(Pixel)),
                                    reinterpret_cast<const std::uint8_t*>(pixels.data()))
                          .sequence;
    }
}

} // namespace quorvel::x11
