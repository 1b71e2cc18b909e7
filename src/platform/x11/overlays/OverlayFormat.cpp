#include "platform/x11/overlays/OverlayFormat.h"

#include "platform/x11/Connection.h"

namespace quorvel::x11 {

OverlayFormat::OverlayFormat(Connection& connection, std::uint8_t depth, xcb_visualid_t visual)
    : connection(connection),
      bits(depth),
      visualId(visual),
      colors(xcb_generate_id(connection.xcb())),
      graphicsContext(xcb_generate_id(connection.xcb()))
{
    auto* const xcb = connection.xcb();
    xcb_create_colormap(xcb, XCB_COLORMAP_ALLOC_NONE, colors, connection.root(), visual);
    // A graphics context is made for a depth, which some drawable must show.
    const auto sample = xcb_generate_id(xcb);
    xcb_create_pixmap(xcb, depth, sample, connection.root(), 1, 1);
    const std::uint32_t noExposures = 0;
    xcb_create_gc(xcb, graphicsContext, sample, XCB_GC_GRAPHICS_EXPOSURES, &noExposures);
    xcb_free_pixmap(xcb, sample);
}

OverlayFormat::~OverlayFormat()
{
    xcb_free_gc(connection.xcb(), graphicsContext);
    xcb_free_colormap(connection.xcb(), colors);
}

} // namespace quorvel::x11
