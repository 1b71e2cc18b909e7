#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace quorvel::x11 {

struct PixelSize {
    int width = 0;
    int height = 0;

    bool operator==(const PixelSize&) const = default;
};

struct PixelRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    int maxX() const { return x + width; }
    int maxY() const { return y + height; }
    bool operator==(const PixelRect&) const = default;
};

// A pixel as cairo's ARGB32 surfaces and 32-bit X visuals hold it: 0xAARRGGBB, premultiplied.
using Pixel = std::uint32_t;

constexpr unsigned alphaOf(Pixel pixel)
{
    return pixel >> 24U;
}

// Rows of pixels without padding, top row first.
struct PixelImage {
    PixelSize size;
    std::vector<Pixel> pixels;

    explicit PixelImage(PixelSize size)
        : size(size), pixels(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height))
    {}

    Pixel at(int x, int y) const { return pixels[index(x, y)]; }
    Pixel& at(int x, int y) { return pixels[index(x, y)]; }
    std::span<const Pixel> row(int y) const
    {
        return std::span(pixels).subspan(index(0, y), static_cast<std::size_t>(size.width));
    }

    bool operator==(const PixelImage&) const = default;

private:
    std::size_t index(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width) + static_cast<std::size_t>(x);
    }
};

} // namespace quorvel::x11
