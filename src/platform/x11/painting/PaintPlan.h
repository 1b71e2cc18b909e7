#pragma once

#include <memory>
#include <vector>

#include "platform/x11/painting/CollapsedList.h"
#include "platform/x11/painting/PixelImage.h"

namespace quorvel::x11 {

// How a window is filled from the picture of its collapsed list: with rectangles of one colour and with pieces of the
// picture. What is not covered is transparent; nothing overlaps.
struct PaintPlan {
    struct Fill {
        PixelRect rect;
        Pixel pixel = 0;

        bool operator==(const Fill&) const = default;
    };

    struct Piece {
        PixelRect rect;
        int pictureX = 0;
        int pictureY = 0;

        bool operator==(const Piece&) const = default;
    };

    std::shared_ptr<const PixelImage> picture;
    std::vector<Fill> fills; // those of one colour follow one another
    std::vector<Piece> pieces;
};

PaintPlan paintPlan(std::shared_ptr<const PixelImage> picture, const std::vector<AxisSegment>& columns,
                    const std::vector<AxisSegment>& rows);

// The pixels that the plan covers opaquely, as rectangles.
std::vector<PixelRect> opaqueRegion(const PaintPlan& plan);

} // namespace quorvel::x11
