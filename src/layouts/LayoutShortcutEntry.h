#pragma once

#include <string>

namespace quorvel {

// One line of the legend: the digit that jumps to a layout.
struct LayoutShortcutEntry {
    std::string digit;
    std::string name;
    bool isActive = false; // the layout is the one being shown

    bool operator==(const LayoutShortcutEntry&) const = default;
};

} // namespace quorvel
