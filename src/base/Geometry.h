#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace quorvel {

// Coordinate spaces. A rectangle's type names its space, so that values of two spaces cannot be mixed by accident.
//
//   AxSpace      points, origin at the top left of the primary screen, y down (accessibility interfaces, X11 root)
//   ScreenSpace  points, origin at the bottom left of the primary screen, y up (screens and windows of the toolkit)
//   ViewSpace    points, origin at the top left of a view, y down (draw lists)
//   UnitSpace    fractions of some area, origin at its bottom left, y up (layout thumbnails)
struct AxSpace {};
struct ScreenSpace {};
struct ViewSpace {};
struct UnitSpace {};

struct Size {
    double width = 0.0;
    double height = 0.0;

    bool operator==(const Size&) const = default;
};

template <class Space>
struct Point {
    double x = 0.0;
    double y = 0.0;

    bool operator==(const Point&) const = default;
};

// An axis-parallel rectangle given by its corner of least coordinates and its size. Sizes are never negative.
template <class Space>
struct Rect {
    double x = 0.0;
    double y = 0.0;
    double width = 0.0;
    double height = 0.0;

    // The rectangle that holds no point at all; the neutral element of unitedWith().
    static constexpr Rect null()
    {
        constexpr auto infinity = std::numeric_limits<double>::infinity();
        return {infinity, infinity, 0.0, 0.0};
    }

    static constexpr Rect of(Point<Space> origin, Size size) { return {origin.x, origin.y, size.width, size.height}; }

    constexpr bool isNull() const
    {
        constexpr auto infinity = std::numeric_limits<double>::infinity();
        return x == infinity || y == infinity;
    }

    constexpr Point<Space> origin() const { return {x, y}; }
    constexpr Size size() const { return {width, height}; }
    constexpr double minX() const { return x; }
    constexpr double minY() const { return y; }
    constexpr double maxX() const { return x + width; }
    constexpr double maxY() const { return y + height; }
    constexpr double midX() const { return x + width / 2.0; }
    constexpr double midY() const { return y + height / 2.0; }
    constexpr double area() const { return width * height; }

    // The common part. Rectangles that only touch share an edge of no area, which is not null; disjoint ones give null.
    constexpr Rect intersectionWith(const Rect& other) const
    {
        if (isNull() || other.isNull()) {
            return null();
        }
        const double left = std::max(minX(), other.minX());
        const double bottom = std::max(minY(), other.minY());
        const double right = std::min(maxX(), other.maxX());
        const double top = std::min(maxY(), other.maxY());
        if (left > right || bottom > top) {
            return null();
        }
        return {left, bottom, right - left, top - bottom};
    }

    constexpr bool intersects(const Rect& other) const { return !intersectionWith(other).isNull(); }

    constexpr bool contains(const Rect& other) const
    {
        return !isNull() && !other.isNull() && other.minX() >= minX() && other.minY() >= minY() &&
               other.maxX() <= maxX() && other.maxY() <= maxY();
    }

    constexpr bool contains(Point<Space> point) const
    {
        return !isNull() && point.x >= minX() && point.x < maxX() && point.y >= minY() && point.y < maxY();
    }

    constexpr Rect unitedWith(const Rect& other) const
    {
        if (isNull()) {
            return other;
        }
        if (other.isNull()) {
            return *this;
        }
        const double left = std::min(minX(), other.minX());
        const double bottom = std::min(minY(), other.minY());
        return {left, bottom, std::max(maxX(), other.maxX()) - left, std::max(maxY(), other.maxY()) - bottom};
    }

    constexpr Rect insetBy(double dx, double dy) const
    {
        return {x + dx, y + dy, std::max(width - 2.0 * dx, 0.0), std::max(height - 2.0 * dy, 0.0)};
    }

    bool operator==(const Rect&) const = default;
};

using AxPoint = Point<AxSpace>;
using AxRect = Rect<AxSpace>;
using ScreenPoint = Point<ScreenSpace>;
using ScreenRect = Rect<ScreenSpace>;
using ViewPoint = Point<ViewSpace>;
using ViewRect = Rect<ViewSpace>;
using UnitRect = Rect<UnitSpace>;

// True when x, y, width and height each differ by less than `tolerance` points.
template <class Space>
constexpr bool nearlyEqual(const Rect<Space>& a, const Rect<Space>& b, double tolerance)
{
    return std::abs(a.x - b.x) < tolerance && std::abs(a.y - b.y) < tolerance &&
           std::abs(a.width - b.width) < tolerance && std::abs(a.height - b.height) < tolerance;
}

} // namespace quorvel
