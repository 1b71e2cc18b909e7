#pragma once

#include <string>
#include <string_view>

#include "platform/LayoutsPaneModel.h"

namespace quorvel {

// What of a pane that shows the one content has to be made anew to show the other.
enum class SelectedRowsChange { none, digits, rows };
struct LayoutsPaneChanges {
    bool hasOtherAvailableRows = false;
    SelectedRowsChange selected = SelectedRowsChange::none;

    bool operator==(const LayoutsPaneChanges&) const = default;
};
LayoutsPaneChanges changesBetween(const LayoutsPaneContent& shown, const LayoutsPaneContent& content);

// Ends the editing of a layout's digit, if the field has another text than before. The layout may have another row by
// now than when the field was shown, or none. Answers what the field shows afterwards.
std::string endEditingDigit(LayoutsPaneModel& model, std::string_view layoutID, std::string_view text);

} // namespace quorvel
