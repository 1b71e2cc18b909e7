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
constexpr std::uint8_t opaqueDepth = 24;

// Whether its pixels are laid out as Pixel is, but for the alpha.
bool isLaidOutLikePixels(const xcb_visualtype_t& visual)
{
    return visual._class == XCB_VISUAL_CLASS_TRUE_COLOR && visual.red_mask == 0xFF0000 && visual.green_mask == 0xFF00 &&
           visual.blue_mask == 0xFF;
}

template <class Predicate>
std::optional<xcb_visualid_t> findVisual(const xcb_screen_t& screen, std::uint8_t depth, Predicate isWanted)
{
    for (auto depths = xcb_screen_allowed_depths_iterator(&screen); depths.rem > 0; xcb_depth_next(&depths)) {
        if (depths.data->depth != depth) {
            continue;
        }
        for (auto visuals = xcb_depth_visuals_iterator(depths.data); visuals.rem > 0; xcb_visualtype_next(&visuals)) {
            if (isLaidOutLikePixels(*visuals.data) && isWanted(*visuals.data)) {
                return visuals.data->visual_id;
            }
        }
    }
    return std::nullopt;
}

std::optional<xcb_visualid_t> findAlphaVisual(const xcb_screen_t& screen)
{
    return findVisual(screen, alphaDepth, [](const auto&) { return true; });
}

bool fillsWholeWords(xcb_connection_t* connection, std::uint8_t depth)
{
    for (auto formats = xcb_setup_pixmap_formats_iterator(xcb_get_setup(connection)); formats.rem > 0;
         xcb_format_next(&formats)) {
        if (formats.data->depth == depth) {
            return formats.data->bits_per_pixel == 8 * sizeof(Pixel);
        }
    }
    return false;
}

// The root's own, if opaque pixels can be sent to it as they are.
std::optional<xcb_visualid_t> findOpaqueVisual(const Connection& connection)
{
    const auto& screen = connection.screen();
    if (screen.root_depth != opaqueDepth || !fillsWholeWords(connection.xcb(), opaqueDepth)) {
        return std::nullopt;
    }
    return findVisual(screen, opaqueDepth,
                      [&](const xcb_visualtype_t& visual) { return visual.visual_id == screen.root_visual; });
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
    const auto visual = findAlphaVisual(connection.screen());
    if (!visual || !hasOwnByteOrder(connection.xcb()) || connection.extension(&xcb_shape_id) == nullptr) {
        return std::unexpected("This X display cannot show windows with transparency and shape.");
    }
    return std::unique_ptr<OverlayGraphics>(new OverlayGraphics(connection, *visual));
}

OverlayGraphics::OverlayGraphics(Connection& connection, xcb_visualid_t visual)
    : connection(connection),
      blended(connection, alphaDepth, visual),
      maximumRequestBytes(std::size_t{4} * xcb_get_maximum_request_length(connection.xcb())),
      compositorShadow(connection.atom("_COMPTON_SHADOW"))
{
    if (const auto opaqueVisual = findOpaqueVisual(connection)) {
        opaque.emplace(connection, opaqueDepth, *opaqueVisual);
    }
}

const OverlayFormat& OverlayGraphics::format(Blending blending) const
{
    return blending == Blending::unavailable && opaque ? *opaque : blended;
}

xcb_window_t OverlayGraphics::createWindow(const PixelRect& rect, Blending blending)
{
    const auto window = xcb_generate_id(connection.xcb());
    const auto& kind = format(blending);
    xcb_create_window_value_list_t values{};
    values.background_pixel = 0;
    values.border_pixel = 0;
    values.override_redirect = 1;
    values.colormap = kind.colormap();
    const auto place = xcbRectangle(rect);
    xcb_create_window_aux(connection.xcb(), kind.depth(), window, connection.root(), place.x, place.y, place.width,
                          place.height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, kind.visual(),
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

std::uint32_t OverlayGraphics::draw(xcb_window_t window, const PaintPlan& plan, Blending blending)
{
    const auto& kind = format(blending);
    drawFills(window, kind, plan.fills);
    for (const auto& piece : plan.pieces) {
        drawPiece(window, kind, *plan.picture, piece);
    }
    return lastRequest;
}

void OverlayGraphics::drawFills(xcb_window_t window, const OverlayFormat& format,
                                const std::vector<PaintPlan::Fill>& fills)
{
    std::vector<xcb_rectangle_t> rectangles;
    for (auto first = fills.begin(); first != fills.end();) {
        const auto next =
            std::find_if(first, fills.end(), [&](const auto& fill) { return fill.pixel != first->pixel; });
        rectangles.clear();
        std::transform(first, next, std::back_inserter(rectangles),
                       [](const auto& fill) { return xcbRectangle(fill.rect); });
        xcb_change_gc(connection.xcb(), format.context(), XCB_GC_FOREGROUND, &first->pixel);
        lastRequest = xcb_poly_fill_rectangle(connection.xcb(), window, format.context(),
                                              static_cast<std::uint32_t>(rectangles.size()), rectangles.data())
                          .sequence;
        first = next;
    }
}

// In as many requests as their greatest length asks for; usually one.
void OverlayGraphics::drawPiece(xcb_window_t window, const OverlayFormat& format, const PixelImage& picture,
                                const PaintPlan::Piece& piece)
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
        lastRequest = xcb_put_image(connection.xcb(), XCB_IMAGE_FORMAT_Z_PIXMAP, window, format.context(),
                                    static_cast<std::uint16_t>(rect.width), static_cast<std::uint16_t>(rows),
                                    static_cast<std::int16_t>(rect.x), static_cast<std::int16_t>(rect.y + top), 0,
                                    format.depth(), static_cast<std::uint32_t>(pixels.size() * sizeof(Pixel)),
                                    reinterpret_cast<const std::uint8_t*>(pixels.data()))
                          .sequence;
    }
}

} // namespace quorvel::x11
