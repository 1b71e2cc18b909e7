#pragma once

#include "base/DrawList.h"
#include "base/Geometry.h"

namespace quorvel {

// What a view shows at the size at which everything in it fits.
struct FittedDrawing {
    Size fittingSize;
    DrawList content;

    bool operator==(const FittedDrawing&) const = default;
};

} // namespace quorvel
