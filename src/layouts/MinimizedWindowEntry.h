#pragma once

#include <cstdint>
#include <string>

namespace quorvel {

// One window in a list of the focus switcher.
struct MinimizedWindowEntry {
    std::uint64_t id = 0; // unique within its list
    std::string label;
    std::string appName;
    std::string windowTitle;

    bool operator==(const MinimizedWindowEntry&) const = default;
};

} // namespace quorvel
