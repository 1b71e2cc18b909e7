#pragma once

#include <string>

namespace quorvel {

enum class ButtonRole {
    normal,
    confirm, // what Return does
    cancel,  // what Escape and closing do
    destructive,
};

// A button in the preferences, known by its id.
struct PaneButton {
    std::string id;
    std::string title;
    std::string symbol; // shown in place of the title where it is not empty
    std::string accessibleName;
    ButtonRole role = ButtonRole::normal;
    bool isEnabled = true;

    bool operator==(const PaneButton&) const = default;
};

} // namespace quorvel
