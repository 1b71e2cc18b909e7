#pragma once

#include <cstddef>
#include <list>
#include <memory>

#include "platform/x11/painting/CollapsedList.h"
#include "platform/x11/painting/Painter.h"
#include "platform/x11/painting/PixelImage.h"

namespace quorvel::x11 {

// Whether pixels can let through what is behind their window.
enum class Blending { available, unavailable };

// Draws collapsed lists and remembers the pictures, because overlays show the same few labels again and again.
class PictureCache {
public:
    explicit PictureCache(const Painter& painter) : painter(painter) {}

    // Without blending every pixel is either opaque or not there.
    std::shared_ptr<const PixelImage> picture(const CollapsedList& collapsed, Blending blending);

    std::size_t bytes() const { return heldBytes; }

    // A letter for each window on a desktop with long titles.
    static constexpr std::size_t maximumBytes = std::size_t{6} << 20U;

private:
    struct Entry {
        DrawList list;
        Blending blending;
        std::shared_ptr<const PixelImage> picture;
    };

    std::shared_ptr<const PixelImage> draw(const CollapsedList& collapsed, Blending blending) const;
    void remember(const CollapsedList& collapsed, Blending blending, std::shared_ptr<const PixelImage> picture);

    const Painter& painter;
    std::list<Entry> entries; // the most recently used first
    std::size_t heldBytes = 0;
};

} // namespace quorvel::x11
