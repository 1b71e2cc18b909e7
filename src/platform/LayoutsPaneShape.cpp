#include "platform/LayoutsPaneShape.h"

#include <algorithm>

namespace quorvel {

namespace {

auto rowOf(const std::vector<SelectedLayoutRow>& rows, std::string_view layoutID)
{
    return std::ranges::find(rows, layoutID, [](const SelectedLayoutRow& each) { return each.cell.layoutID; });
}

} // namespace

LayoutsPaneChanges changesBetween(const LayoutsPaneContent& shown, const LayoutsPaneContent& content)
{
    LayoutsPaneChanges changes{.hasOtherAvailableRows = content.available != shown.available};
    if (!std::ranges::equal(content.selected, shown.selected, &SelectedLayoutRow::hasSameCell)) {
        changes.selected = SelectedRowsChange::rows;
    } else if (content.selected != shown.selected) {
        changes.selected = SelectedRowsChange::digits;
    }
    return changes;
}

std::string endEditingDigit(LayoutsPaneModel& model, std::string_view layoutID, std::string_view text)
{
    const auto before = model.content().selected;
    const auto row = rowOf(before, layoutID);
    if (row == before.end() || row->digit == text) {
        return std::string(text);
    }
    model.endEditingDigit(static_cast<std::size_t>(row - before.begin()), text);
    const auto after = model.content().selected;
    const auto kept = rowOf(after, layoutID);
    return kept == after.end() ? std::string() : kept->digit;
}

} // namespace quorvel
