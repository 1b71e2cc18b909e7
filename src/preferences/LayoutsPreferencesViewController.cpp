#include "preferences/LayoutsPreferencesViewController.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <numeric>
#include <optional>
#include <ranges>
#include <utility>

#include <fmt/format.h>

#include "platform/KeyboardLayout.h"
#include "platform/Platform.h"
#include "preferences/ControlValues.h"
#include "preferences/LayoutThumbnail.h"

namespace quorvel {

namespace {

constexpr std::string_view addID = "add";
constexpr std::string_view removeID = "remove";
constexpr double headerHeight = 28.0;
constexpr double layoutHeight = 56.0;

std::string sectionTitle(std::size_t frameCount)
{
    return frameCount == 1 ? "1 Window" : fmt::format("{} Windows", frameCount);
}

PaneButton arrowButton(std::string_view id, std::string_view symbol, std::string_view accessibleName, bool isEnabled)
{
    return {.id = std::string(id),
            .title = {},
            .symbol = std::string(symbol),
            .accessibleName = std::string(accessibleName),
            .role = ButtonRole::normal,
            .isEnabled = isEnabled};
}

bool contains(const TableSelection& selection, std::size_t row)
{
    return std::ranges::find(selection, row) != selection.end();
}

TableSelection rowsBelow(const TableSelection& rows, std::size_t count)
{
    TableSelection result;
    std::ranges::copy_if(rows, std::back_inserter(result), [count](std::size_t row) { return row < count; });
    std::ranges::sort(result);
    const auto repeated = std::ranges::unique(result);
    result.erase(repeated.begin(), repeated.end());
    return result;
}

std::optional<std::size_t> rowFromItem(std::string_view item)
{
    std::size_t row = 0;
    const auto* const end = item.data() + item.size();
    const auto parsed = std::from_chars(item.data(), end, row);
    return parsed.ec == std::errc() && parsed.ptr == end ? std::optional(row) : std::nullopt;
}

} // namespace

LayoutsPreferencesViewController::LayoutsPreferencesViewController(const Platform& platform)
    : platform(platform),
      settings(platform.userDefaults),
      layoutsManager(platform.bundle, settings, platform.log),
      digits(settings)
{
    reload();
}

void LayoutsPreferencesViewController::reload()
{
    layoutsManager.loadLayouts();
    available = layoutsManager.allLayoutSummaries();
    buildAvailableRows();
    selected.clear();
    for (const auto& id :
         settings.stringArray(LayoutsManager::selectedDefaultsKey).value_or(std::vector<std::string>{})) {
        if (const auto found = std::ranges::find(available, id, &LayoutSummary::id); found != available.end()) {
            selected.push_back(*found);
        }
    }
    selectedSelection = rowsBelow(selectedSelection, selected.size());
    contentChanged.emit();
}

// Keeps those layouts selected that still have a row.
void LayoutsPreferencesViewController::buildAvailableRows()
{
    std::map<std::size_t, std::vector<LayoutSummary>> sections;
    for (const auto& layout : available) {
        sections[layoutsManager.normalizedFramesForLayoutID(layout.id).size()].push_back(layout);
    }
    std::vector<AvailableRow> rows;
    for (const auto& [frameCount, layouts] : sections) {
        const auto title = sectionTitle(frameCount);
        rows.emplace_back(title);
        if (!collapsedSections.contains(title)) {
            std::ranges::copy(layouts, std::back_inserter(rows));
        }
    }
    TableSelection selection;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const auto wasSelected = [&](std::size_t oldRow) { return availableRows[oldRow] == rows[row]; };
        if (std::ranges::any_of(availableSelection, wasSelected)) {
            selection.push_back(row);
        }
    }
    availableRows = std::move(rows);
    availableSelection = std::move(selection);
}

LayoutsPaneContent LayoutsPreferencesViewController::content() const
{
    LayoutsPaneContent content{
        .title = "Layouts",
        .availableTitle = "Available",
        .available = {},
        .availableSelection = availableSelection,
        .selectedTitle = "Selected",
        .selected = {},
        .selectedSelection = selectedSelection,
        .add = arrowButton(addID, "arrow.right", "Add to Selected", !layoutsToAdd().empty()),
        .remove = arrowButton(removeID, "arrow.left", "Remove from Selected", !selectedSelection.empty()),
        .digitToolTip = "Assign a digit (1–9). Press it while the layout overlay is visible to jump straight here.",
        .orderingToolTip = fmt::format("Drag rows, or press {0}+Up or {0}+Down, to change the order.",
                                       platform.keyboardLayout.modifierNames().option),
        .tip = "Tip: type a digit (1–9) next to a layout to jump straight to it while the overlay is open.",
    };
    for (const auto& row : availableRows) {
        content.available.push_back(shownRow(row));
    }
    for (const auto& layout : selected) {
        content.selected.push_back({.cell = cell(layout),
                                    .digit = digits.digitOf(layout.id),
                                    .digitAccessibleName = fmt::format("Digit of “{}”", layout.name),
                                    .height = layoutHeight});
    }
    return content;
}

AvailableLayoutRow LayoutsPreferencesViewController::shownRow(const AvailableRow& row) const
{
    if (const auto* const title = std::get_if<SectionHeader>(&row)) {
        return {.content = LayoutSectionHeader{*title, collapsedSections.contains(*title)}, .height = headerHeight};
    }
    return {.content = cell(std::get<LayoutSummary>(row)), .height = layoutHeight};
}

LayoutCell LayoutsPreferencesViewController::cell(const LayoutSummary& layout) const
{
    auto image = imageCache.find(layout.id);
    if (image == imageCache.end()) {
        const auto frames = layoutsManager.normalizedFramesForLayoutID(layout.id);
        image = imageCache.emplace(layout.id, layoutThumbnail::drawing(frames, platform.systemColors)).first;
    }
    return {
        .layoutID = layout.id, .name = layout.name, .thumbnailSize = layoutThumbnail::size, .thumbnail = image->second};
}

void LayoutsPreferencesViewController::selectAvailable(const TableSelection& rows)
{
    availableSelection = rowsBelow(rows, availableRows.size());
    std::erase_if(availableSelection,
                  [this](std::size_t row) { return std::holds_alternative<SectionHeader>(availableRows[row]); });
    contentChanged.emit();
}

void LayoutsPreferencesViewController::selectSelected(const TableSelection& rows)
{
    selectedSelection = rowsBelow(rows, selected.size());
    contentChanged.emit();
}

void LayoutsPreferencesViewController::press(std::string_view id)
{
    if (id == addID) {
        add();
    } else if (id == removeID) {
        remove();
    } else {
        reportUnknownControl(id);
    }
}

void LayoutsPreferencesViewController::clickHeader(std::size_t availableRow)
{
    const auto* const title =
        availableRow < availableRows.size() ? std::get_if<SectionHeader>(&availableRows[availableRow]) : nullptr;
    if (title == nullptr) {
        return;
    }
    if (const auto header = *title; collapsedSections.erase(header) == 0) {
        collapsedSections.insert(header);
    }
    buildAvailableRows();
    contentChanged.emit();
}

void LayoutsPreferencesViewController::doubleClickAvailable(std::size_t row)
{
    if (row >= availableRows.size() || std::holds_alternative<SectionHeader>(availableRows[row])) {
        return;
    }
    if (!contains(availableSelection, row)) {
        availableSelection = {row};
    }
    add();
}

void LayoutsPreferencesViewController::doubleClickSelected(std::size_t row)
{
    if (row >= selected.size()) {
        return;
    }
    if (!contains(selectedSelection, row)) {
        selectedSelection = {row};
    }
    remove();
}

std::vector<LayoutSummary> LayoutsPreferencesViewController::layoutsToAdd() const
{
    std::vector<LayoutSummary> layouts;
    for (const auto row : availableSelection) {
        const auto* const layout = std::get_if<LayoutSummary>(&availableRows[row]);
        if (layout != nullptr && !isSelected(*layout)) {
            layouts.push_back(*layout);
        }
    }
    return layouts;
}

bool LayoutsPreferencesViewController::isSelected(const LayoutSummary& layout) const
{
    return std::ranges::find(selected, layout) != selected.end();
}

void LayoutsPreferencesViewController::add()
{
    const auto layouts = layoutsToAdd();
    if (layouts.empty()) {
        return;
    }
    std::ranges::copy(layouts, std::back_inserter(selected));
    storeSelection();
    contentChanged.emit();
}

// A layout of which another row is left keeps its digit.
void LayoutsPreferencesViewController::remove()
{
    const auto rows = std::exchange(selectedSelection, {});
    if (rows.empty()) {
        return;
    }
    std::vector<LayoutSummary> removed;
    for (const auto row : std::views::reverse(rows)) {
        const auto layout = selected.begin() + static_cast<std::ptrdiff_t>(row);
        removed.push_back(*layout);
        selected.erase(layout);
    }
    storeSelection();
    for (const auto& layout : removed) {
        if (!isSelected(layout)) {
            digits.remove(layout.id);
        }
    }
    reload();
}

void LayoutsPreferencesViewController::endEditingDigit(std::size_t selectedRow, std::string_view text)
{
    if (selectedRow < selected.size()) {
        digits.assign(selected[selectedRow].id, text);
        reload();
    }
}

std::string LayoutsPreferencesViewController::dragItem(std::size_t selectedRow) const
{
    return std::to_string(selectedRow);
}

bool LayoutsPreferencesViewController::drop(DragSource source, const std::vector<std::string>& items,
                                            std::size_t beforeRow)
{
    TableSelection dragged;
    for (const auto& item : items) {
        if (const auto row = rowFromItem(item)) {
            dragged.push_back(*row);
        }
    }
    const auto rows = rowsBelow(dragged, selected.size());
    if (!acceptsDrop(source) || rows.empty()) {
        return false;
    }
    moveBlock(rows, beforeRow);
    return true;
}

void LayoutsPreferencesViewController::moveSelected(RowMove move)
{
    if (selectedSelection.empty()) {
        return;
    }
    const auto first = selectedSelection.front();
    const auto behindLast = selectedSelection.back() + 1;
    const bool isBlock = behindLast - first == selectedSelection.size();
    if (isBlock && (move == RowMove::up ? first == 0 : behindLast == selected.size())) {
        return;
    }
    moveBlock(selectedSelection, move == RowMove::up ? std::max<std::size_t>(first, 1) - 1 : behindLast + 1);
}

// The rows come out first, which moves the place of the drop up by those that stood above it:
//
//   ▸ A          B
//     B          D
//   ▸ C     →    ▸ A
//     D          ▸ C
//   ──── 4       E
void LayoutsPreferencesViewController::moveBlock(const TableSelection& rows, std::size_t beforeRow)
{
    std::vector<LayoutSummary> block;
    std::vector<LayoutSummary> rest;
    for (std::size_t row = 0; row < selected.size(); ++row) {
        (contains(rows, row) ? block : rest).push_back(selected[row]);
    }
    const auto place = std::min(beforeRow, selected.size());
    const auto movedAbove = std::ranges::count_if(rows, [place](std::size_t row) { return row < place; });
    const auto first = place - static_cast<std::size_t>(movedAbove);
    rest.insert(rest.begin() + static_cast<std::ptrdiff_t>(first), block.begin(), block.end());
    selected = std::move(rest);
    TableSelection moved(block.size());
    std::iota(moved.begin(), moved.end(), first);
    selectedSelection = std::move(moved);
    storeSelection();
    contentChanged.emit();
}

void LayoutsPreferencesViewController::storeSelection()
{
    std::vector<std::string> ids;
    std::ranges::transform(selected, std::back_inserter(ids), &LayoutSummary::id);
    settings.setStringArray(LayoutsManager::selectedDefaultsKey, ids);
}

} // namespace quorvel
