#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/Signal.h"
#include "layouts/LayoutSummary.h"
#include "layouts/LayoutsManager.h"
#include "platform/LayoutsPaneModel.h"
#include "preferences/LayoutDigits.h"

namespace quorvel {

struct Platform;

// The pane that picks layouts of the catalogue, puts them in order and gives them digits. It reads the catalogue by
// itself; the overlay sees a change when it asks the settings the next time.
//
// An id that is stored twice has two rows. Ids that the catalogue lacks have none, and are forgotten when the selection
// is stored the next time.
class LayoutsPreferencesViewController final : public LayoutsPaneModel {
public:
    // The rows of the selected table travel under a type that no other application knows.
    static constexpr std::string_view selectedRowPasteboardType = "io.quorvel.layouts.selected.row";

    // `platform` outlives the pane.
    explicit LayoutsPreferencesViewController(const Platform& platform);

    // Reads catalogue and settings again, which somebody else may have changed.
    void reload();

    LayoutsPaneContent content() const override;
    Subscription observe(std::function<void()> changed) override { return contentChanged.observe(std::move(changed)); }

    void selectAvailable(const TableSelection& rows) override;
    void selectSelected(const TableSelection& rows) override;
    void press(std::string_view id) override;
    void clickHeader(std::size_t availableRow) override;
    void doubleClickAvailable(std::size_t row) override;
    void doubleClickSelected(std::size_t row) override;
    void endEditingDigit(std::size_t selectedRow, std::string_view text) override;

    std::string_view dragType() const override { return selectedRowPasteboardType; }
    std::string dragItem(std::size_t selectedRow) const override;
    bool acceptsDrop(DragSource source) const override { return source == DragSource::selectedTable; }
    bool drop(DragSource source, const std::vector<std::string>& items, std::size_t beforeRow) override;
    void moveSelected(RowMove move) override;

private:
    using SectionHeader = std::string;
    using AvailableRow = std::variant<SectionHeader, LayoutSummary>;

    void buildAvailableRows();
    std::vector<LayoutSummary> layoutsToAdd() const;
    void moveBlock(const TableSelection& rows, std::size_t beforeRow);
    void add();
    void remove();
    void storeSelection();
    bool isSelected(const LayoutSummary& layout) const;
    AvailableLayoutRow shownRow(const AvailableRow& row) const;
    LayoutCell cell(const LayoutSummary& layout) const;

    const Platform& platform;
    Settings settings;
    LayoutsManager layoutsManager;
    LayoutDigits digits;
    std::vector<LayoutSummary> available;
    std::vector<AvailableRow> availableRows;
    std::set<std::string> collapsedSections;
    std::vector<LayoutSummary> selected;
    TableSelection availableSelection;
    TableSelection selectedSelection;
    mutable std::map<std::string, DrawList> imageCache; // by layout id
    Signal<> contentChanged;
};

} // namespace quorvel
