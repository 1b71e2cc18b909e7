#pragma once

#include <string>

namespace quorvel {

// What a list of layouts needs to know of one.
struct LayoutSummary {
    std::string id;
    std::string name;

    bool operator==(const LayoutSummary&) const = default;
};

} // namespace quorvel
