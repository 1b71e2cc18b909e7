#pragma once

#include <cstdint>

#include <xcb/xcb.h>

namespace quorvel::x11 {

class Connection;

// A kind of window as the server knows it: a visual with its depth, and what windows of that visual need.
class OverlayFormat {
public:
    OverlayFormat(Connection& connection, std::uint8_t depth, xcb_visualid_t visual);
    OverlayFormat(const OverlayFormat&) = delete;
    OverlayFormat& operator=(const OverlayFormat&) = delete;
    ~OverlayFormat();

    std::uint8_t depth() const { return bits; }
    xcb_visualid_t visual() const { return visualId; }
    xcb_colormap_t colormap() const { return colors; }
    xcb_gcontext_t context() const { return graphicsContext; }

private:
    Connection& connection;
    std::uint8_t bits;
    xcb_visualid_t visualId;
    xcb_colormap_t colors;
    xcb_gcontext_t graphicsContext;
};

} // namespace quorvel::x11
