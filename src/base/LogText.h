#pragma once

#include <string>
#include <string_view>

#include "base/Geometry.h"

namespace quorvel {

// The text with a blank for each control character: line ends, and what terminals take for commands. Titles of other
// programs' windows may hold any.
std::string plainLine(std::string_view text);

// The text form of values in log lines: doubles in shortest round-trip form with at least one decimal, points and sizes
// as "(a, b)", rectangles as "(x, y, width, height)".
std::string logText(double value);
std::string logText(const Size& size);

template <class Space>
std::string logText(const Point<Space>& point)
{
    return "(" + logText(point.x) + ", " + logText(point.y) + ")";
}

template <class Space>
std::string logText(const Rect<Space>& rect)
{
    return "(" + logText(rect.x) + ", " + logText(rect.y) + ", " + logText(rect.width) + ", " + logText(rect.height) +
           ")";
}

} // namespace quorvel
