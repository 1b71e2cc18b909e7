#pragma once

#include <vector>

#include "layouts/LayoutModel.h"

namespace quorvel {

// The whole catalogue, in the order of its file.
struct LayoutsModel {
    std::vector<LayoutModel> layouts;

    bool operator==(const LayoutsModel&) const = default;
};

} // namespace quorvel
