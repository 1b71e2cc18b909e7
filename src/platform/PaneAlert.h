#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/PaneButton.h"

namespace quorvel {

// A line of text to fill in. Sends a std::string on every change of it.
struct PaneTextField {
    std::string id;
    std::string placeholder; // also its accessible name
    std::string text;

    bool operator==(const PaneTextField&) const = default;
};

// A question over a pane or a sheet. Pressing any button of it ends it; closing it presses the cancelling one.
struct PaneAlert {
    std::string title;
    std::string message;                // empty for none
    std::optional<PaneTextField> field; // has the keyboard from the start
    std::vector<PaneButton> buttons;    // first to last; one of them confirms or destroys, one cancels

    bool operator==(const PaneAlert&) const = default;
};

} // namespace quorvel
