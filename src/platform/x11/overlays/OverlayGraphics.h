#pragma once

#include <cstdint>
#include <expected>
#include <memory>
#include <string>
#include <vector>

#include <xcb/xcb.h>

#include "platform/x11/painting/PaintPlan.h"

namespace quorvel::x11 {

class Connection;

// What all overlay windows share at the server: a visual with alpha, its colour map and a graphics context.
class OverlayGraphics {
public:
    // Fails on displays that have no 32-bit visual; the error is a text for people.
    static std::expected<std::unique_ptr<OverlayGraphics>, std::string> create(Connection& connection);

    OverlayGraphics(const OverlayGraphics&) = delete;
    OverlayGraphics& operator=(const OverlayGraphics&) = delete;
    ~OverlayGraphics();

    // A window in root coordinates that no window manager decorates; transparent and not shown yet.
    xcb_window_t createWindow(const PixelRect& rect);

    void place(xcb_window_t window, const PixelRect& rect);

    // Lets clicks through to what is behind the window.
    void ignoreMouse(xcb_window_t window);

    // Cuts the window to that region of itself.
    void cut(xcb_window_t window, const std::vector<PixelRect>& region);
    void removeCut(xcb_window_t window);

    // Makes everything in the window transparent.
    void clear(xcb_window_t window);

    // Fills a shown window. Answers the number of the last request, which tells exposures before it from later ones.
    std::uint32_t draw(xcb_window_t window, const PaintPlan& plan);

private:
    OverlayGraphics(Connection& connection, xcb_visualid_t visual);

    void setProperties(xcb_window_t window);
    void drawFills(xcb_window_t window, const std::vector<PaintPlan::Fill>& fills);
    void drawPiece(xcb_window_t window, const PixelImage& picture, const PaintPlan::Piece& piece);

    Connection& connection;
    xcb_visualid_t visual;
    xcb_colormap_t colormap;
    xcb_gcontext_t context;
    std::size_t maximumRequestBytes;
    xcb_atom_t compositorShadow;
    std::uint32_t lastRequest = 0;
};

} // namespace quorvel::x11
