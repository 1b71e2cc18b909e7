#pragma once

#include <string>
#include <vector>

#include "platform/PaneButton.h"

namespace quorvel {

// One thing in a list, with what can be done with it.
struct ListSheetRow {
    std::string id;
    std::string title;
    std::string subtitle;
    std::vector<PaneButton> buttons;

    bool operator==(const ListSheetRow&) const = default;
};

// What a sheet shows while its list is empty.
struct ListSheetPlaceholder {
    std::string symbol;
    std::string heading;
    std::string line;

    bool operator==(const ListSheetPlaceholder&) const = default;
};

// A list over a pane. Closing it presses `close`.
struct ListSheet {
    std::string title;
    ListSheetPlaceholder placeholder;
    std::vector<ListSheetRow> rows;
    std::string footer; // at the foot, beside the button; empty for none
    PaneButton close;

    bool operator==(const ListSheet&) const = default;
};

} // namespace quorvel
