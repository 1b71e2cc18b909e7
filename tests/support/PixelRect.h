#pragma once

#include <cstdlib>
#include <ostream>

#include <fmt/format.h>

#include "base/Geometry.h"

namespace quorvel::xtest {

// A rectangle in root coordinates: whole pixels, origin at the top left, y down.
struct PixelRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const PixelRect&) const = default;

    AxRect inPoints() const
    {
        return {static_cast<double>(x), static_cast<double>(y), static_cast<double>(width),
                static_cast<double>(height)};
    }
};

// The same but for fractions of a pixel, which may have gone either way.
inline bool isNear(const PixelRect& a, const PixelRect& b)
{
    const auto within = [](int value, int expected) { return std::abs(value - expected) <= 1; };
    return within(a.x, b.x) && within(a.y, b.y) && within(a.width, b.width) && within(a.height, b.height);
}

inline std::ostream& operator<<(std::ostream& stream, const PixelRect& rect)
{
    return stream << fmt::format("({}, {}, {}, {})", rect.x, rect.y, rect.width, rect.height);
}

} // namespace quorvel::xtest
