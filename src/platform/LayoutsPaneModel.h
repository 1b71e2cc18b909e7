#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/DrawList.h"
#include "base/Geometry.h"
#include "base/Subscription.h"
#include "platform/PaneButton.h"

namespace quorvel {

// The pane with two tables side by side: the available layouts, in sections, and the selected ones, in order.

// The small picture and the name of one layout.
struct LayoutCell {
    std::string layoutID;
    std::string name;
    Size thumbnailSize;
    DrawList thumbnail;

    bool operator==(const LayoutCell&) const = default;
};

// A row that cannot be selected; a click on it shows or hides the rows of its section.
struct LayoutSectionHeader {
    std::string title;
    bool isCollapsed = false;

    bool operator==(const LayoutSectionHeader&) const = default;
};

struct AvailableLayoutRow {
    std::variant<LayoutSectionHeader, LayoutCell> content;
    double height = 0.0; // points

    bool operator==(const AvailableLayoutRow&) const = default;
};

struct SelectedLayoutRow {
    LayoutCell cell;
    std::string digit;               // what its digit field shows; may be empty
    std::string digitAccessibleName; // of the field, for screen readers
    double height = 0.0;

    bool operator==(const SelectedLayoutRow&) const = default;

    // Whether only the digits tell the two apart, if anything does.
    bool hasSameCell(const SelectedLayoutRow& other) const { return cell == other.cell && height == other.height; }
};

// Indexes of rows of a table, in ascending order.
using TableSelection = std::vector<std::size_t>;

struct LayoutsPaneContent {
    std::string title;
    std::string availableTitle;
    std::vector<AvailableLayoutRow> available;
    TableSelection availableSelection;
    std::string selectedTitle;
    std::vector<SelectedLayoutRow> selected;
    TableSelection selectedSelection;
    PaneButton add;    // between the tables; its accessible name is its tooltip, too
    PaneButton remove; // under it
    std::string digitToolTip;
    std::string orderingToolTip; // of the selected rows
    std::string tip;             // under the tables

    bool operator==(const LayoutsPaneContent&) const = default;
};

// Main thread only. Rows are indexes into content() as it stands.
class LayoutsPaneModel {
public:
    LayoutsPaneModel() = default;
    LayoutsPaneModel(const LayoutsPaneModel&) = delete;
    LayoutsPaneModel& operator=(const LayoutsPaneModel&) = delete;
    virtual ~LayoutsPaneModel() = default;

    virtual LayoutsPaneContent content() const = 0;

    // Calls `changed` after content() has changed, until the token goes; also from inside the calls below.
    virtual Subscription observe(std::function<void()> changed) = 0;

    // The user has selected these rows and no others.
    virtual void selectAvailable(const TableSelection& rows) = 0;
    virtual void selectSelected(const TableSelection& rows) = 0;

    // A press of a button; an id that the content does not have is a fatal error.
    virtual void press(std::string_view id) = 0;

    virtual void clickHeader(std::size_t availableRow) = 0;
    virtual void doubleClickAvailable(std::size_t row) = 0;
    virtual void doubleClickSelected(std::size_t row) = 0;

    // Editing of a digit field has ended with that text in it. Afterwards the field shows what content() has, also
    // where that is what it was before.
    virtual void endEditingDigit(std::size_t selectedRow, std::string_view text) = 0;

    // Dragging rows of the selected table. A row travels as its item, a text under the drag type; a drop is offered
    // with all items in the order in which they come, and with the row that it would stand before.
    virtual std::string_view dragType() const = 0;
    virtual std::string dragItem(std::size_t selectedRow) const = 0;
    enum class DragSource { selectedTable, elsewhere };
    virtual bool acceptsDrop(DragSource source) const = 0;
    virtual bool drop(DragSource source, const std::vector<std::string>& items, std::size_t beforeRow) = 0;

    // The same by keyboard: the selected rows of the selected table go as one block before the row above them or behind
    // the one below them.
    enum class RowMove { up, down };
    virtual void moveSelected(RowMove move) = 0;
};

} // namespace quorvel
