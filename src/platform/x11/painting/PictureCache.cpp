#include "platform/x11/painting/PictureCache.h"

#include <algorithm>
#include <utility>

namespace quorvel::x11 {

namespace {

// One picture must not push out all the others.
constexpr std::size_t largestKept = PictureCache::maximumBytes / 4;

std::size_t bytesOf(const PixelImage& picture)
{
    return picture.pixels.size() * sizeof(Pixel);
}

// Pixels at the outline of what is drawn become whole or go, whichever is nearer; those that stay show the pure colour.
Pixel opaqueOrAbsent(Pixel pixel)
{
    constexpr unsigned half = 128;
    constexpr unsigned whole = 255;
    const unsigned alpha = alphaOf(pixel);
    if (alpha == whole) {
        return pixel;
    }
    if (alpha < half) {
        return 0;
    }
    const auto component = [&](unsigned shift) {
        const unsigned value = (pixel >> shift) & 0xFFU;
        return std::min((value * 255U + alpha / 2U) / alpha, 255U) << shift;
    };
    return 0xFF000000U | component(16) | component(8) | component(0);
}

} // namespace

std::shared_ptr<const PixelImage> PictureCache::picture(const CollapsedList& collapsed, Blending blending)
{
    const auto known = std::ranges::find_if(entries, [&](const Entry& entry) {
        return entry.blending == blending && entry.picture->size == collapsed.size && entry.list == collapsed.list;
    });
    if (known != entries.end()) {
        entries.splice(entries.begin(), entries, known);
        return known->picture;
    }
    auto picture = draw(collapsed, blending);
    if (bytesOf(*picture) <= largestKept) {
        remember(collapsed, blending, picture);
    }
    return picture;
}

std::shared_ptr<const PixelImage> PictureCache::draw(const CollapsedList& collapsed, Blending blending) const
{
    auto picture = std::make_shared<PixelImage>(collapsed.size);
    painter.paint(*picture, collapsed.list);
    if (blending == Blending::unavailable) {
        std::ranges::transform(picture->pixels, picture->pixels.begin(), opaqueOrAbsent);
    }
    return picture;
}

void PictureCache::remember(const CollapsedList& collapsed, Blending blending,
                            std::shared_ptr<const PixelImage> picture)
{
    heldBytes += bytesOf(*picture);
    entries.push_front({collapsed.list, blending, std::move(picture)});
    while (heldBytes > maximumBytes) {
        heldBytes -= bytesOf(*entries.back().picture);
        entries.pop_back();
    }
}

} // namespace quorvel::x11
