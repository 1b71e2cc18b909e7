#pragma once

#include <string>

#include "base/Geometry.h"

namespace quorvel {

// What the label of a window tells about it besides its letter.
struct VisibleWindowInfo {
    ScreenRect bounds;
    std::string appName;
    std::string windowTitle;

    bool operator==(const VisibleWindowInfo&) const = default;
};

} // namespace quorvel
