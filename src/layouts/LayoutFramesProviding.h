#pragma once

#include <string_view>
#include <vector>

#include "base/Geometry.h"

namespace quorvel {

// Where pictures of layouts get their frames from.
class LayoutFramesProviding {
public:
    LayoutFramesProviding() = default;
    LayoutFramesProviding(const LayoutFramesProviding&) = delete;
    LayoutFramesProviding& operator=(const LayoutFramesProviding&) = delete;
    virtual ~LayoutFramesProviding() = default;

    // The frames of a layout of the catalogue, in order, scaled into the unit square where they reach beyond it; empty
    // for an unknown id.
    virtual std::vector<UnitRect> normalizedFramesForLayoutID(std::string_view id) const = 0;
};

} // namespace quorvel
