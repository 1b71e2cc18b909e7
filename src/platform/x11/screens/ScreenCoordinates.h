#pragma once

#include "base/Geometry.h"
#include "platform/x11/RootGeometry.h"

namespace quorvel::x11 {

// How root coordinates, accessibility coordinates and screen coordinates lead to each other.
//
//      root y                      accessibility y          screen y
//        0 +- - - - - - - -+
//      top +---------+     |             0                   height
//          | a window|                   |                     ^
//          |    +---------+              v                     |
//          +----| primary |
//               +---------+
//
// `top` is where the topmost monitor begins: 0, unless monitors were switched off and left a gap. `height` is the
// height of the first screen's frame. With both, the flip by the first frame's height and the flip by the top of the
// union of all frames are one and the same, wherever the monitors stand.
class ScreenCoordinates {
public:
    ScreenCoordinates() = default;
    ScreenCoordinates(double top, double height) : top(top), height(height) {}

    AxPoint axPoint(RootPoint point) const { return {point.x, point.y - top}; }
    AxRect axRect(const RootRect& rect) const { return {rect.x, rect.y - top, rect.width, rect.height}; }

    RootPoint rootPoint(AxPoint point) const { return {point.x, point.y + top}; }
    RootPoint rootPoint(ScreenPoint point) const { return {point.x, top + height - point.y}; }
    RootRect rootRect(const AxRect& rect) const { return {rect.x, rect.y + top, rect.width, rect.height}; }
    RootRect rootRect(const ScreenRect& rect) const
    {
        return {rect.x, top + height - rect.maxY(), rect.width, rect.height};
    }

    ScreenPoint screenPoint(RootPoint point) const { return {point.x, top + height - point.y}; }
    ScreenRect screenRect(const RootRect& rect) const
    {
        return {rect.x, top + height - rect.maxY(), rect.width, rect.height};
    }

    bool operator==(const ScreenCoordinates&) const = default;

private:
    double top = 0.0;
    double height = 0.0;
};

} // namespace quorvel::x11
