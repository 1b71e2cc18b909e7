#pragma once

#include <cstdint>
#include <expected>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <xcb/xcb.h>

#include "platform/x11/overlays/OverlayFormat.h"
#include "platform/x11/painting/PaintPlan.h"
#include "platform/x11/painting/PictureCache.h"

namespace quorvel::x11 {

class Connection;

// What all overlay windows share at the server. Those that blend with what is behind them have a visual with alpha;
// where nothing can blend they have the root's visual if its pixels are laid out alike, because the server keeps the
// contents of windows of other depths in pixmaps of their own and copies them to the screen.
class OverlayGraphics {
public:
    // Fails on displays that have no 32-bit visual; the error is a text for people.
    static std::expected<std::unique_ptr<OverlayGraphics>, std::string> create(Connection& connection);

    OverlayGraphics(const OverlayGraphics&) = delete;
    OverlayGraphics& operator=(const OverlayGraphics&) = delete;

    // A window in root coordinates that no window manager decorates; empty and not shown yet.
    xcb_window_t createWindow(const PixelRect& rect, Blending blending);

    void place(xcb_window_t window, const PixelRect& rect);

    // Lets clicks through to what is behind the window.
    void ignoreMouse(xcb_window_t window);

    // Cuts the window to that region of itself.
    void cut(xcb_window_t window, const std::vector<PixelRect>& region);
    void removeCut(xcb_window_t window);

    // Takes everything out of the window.
    void clear(xcb_window_t window);

    // Fills a shown window that was created for that blending. Answers the number of the last request, which tells
    // exposures before it from later ones.
    std::uint32_t draw(xcb_window_t window, const PaintPlan& plan, Blending blending);

private:
    OverlayGraphics(Connection& connection, xcb_visualid_t visual);

    const OverlayFormat& format(Blending blending) const;
    void setProperties(xcb_window_t window);
    void drawFills(xcb_window_t window, const OverlayFormat& format, const std::vector<PaintPlan::Fill>& fills);
    void drawPiece(xcb_window_t window, const OverlayFormat& format, const PixelImage& picture,
                   const PaintPlan::Piece& piece);

    Connection& connection;
    OverlayFormat blended;
    std::optional<OverlayFormat> opaque;
    std::size_t maximumRequestBytes;
    xcb_atom_t compositorShadow;
    std::uint32_t lastRequest = 0;
};

} // namespace quorvel::x11
