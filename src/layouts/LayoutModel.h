#pragma once

#include <string>
#include <vector>

#include "layouts/WindowModel.h"

namespace quorvel {

// A named set of frames. The order of `windows` is the order of their letters in the layout overlay.
struct LayoutModel {
    std::string id; // stable; settings refer to it
    std::string name;
    std::vector<WindowModel> windows;

    bool operator==(const LayoutModel&) const = default;
};

} // namespace quorvel
