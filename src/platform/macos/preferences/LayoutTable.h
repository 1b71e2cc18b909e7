#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#import <AppKit/AppKit.h>

#include "platform/LayoutsPaneModel.h"
#include "platform/macos/Retained.h"
#include "platform/macos/preferences/ControlAction.h"
#include "platform/macos/preferences/LayoutTableSource.h"
#include "platform/macos/preferences/LayoutTableView.h"

namespace quorvel::macos {

// A table of rows with views of their own, which tells what the user does with its rows. Where it has a drag type, its
// rows can be dragged to other places in it, several at a time.
class LayoutTable {
public:
    struct Actions {
        std::function<void(const TableSelection&)> select;
        std::function<void(std::size_t row)> activate;       // a double-click, or Return
        std::function<void()> remove;                        // Delete
        std::function<void(LayoutsPaneModel::RowMove)> move; // Option and an arrow key
    };

    struct Row {
        Retained<NSView*> view;
        double height = 0.0;
        bool isHeader = false; // of a section; it cannot be selected
        std::string name;      // for typing ahead
    };

    struct DraggedItem {
        std::string type;
        std::string text;
    };

    LayoutTable(const std::string& accessibleName, Actions actions);
    LayoutTable(const LayoutTable&) = delete;
    LayoutTable& operator=(const LayoutTable&) = delete;
    ~LayoutTable();

    // Rows can be dragged as the model says.
    void enableDragging(LayoutsPaneModel& model);

    void setRows(std::vector<Row> newRows);
    void selectRows(const TableSelection& selection);
    void setFrame(const NSRect& frame) const;

    NSView* view() const { return scroll.get(); }
    NSTableView* tableView() const { return widget.get(); }
    void takeKeyboard() const;

    // For the source.
    const std::vector<Row>& rows() const { return shown; }
    void selectionChanged() const;
    std::optional<DraggedItem> draggedItem(std::size_t row) const;
    bool acceptsDrop(id source) const;
    bool drop(id source, NSArray* items, std::size_t beforeRow) const;

private:
    TableSelection selectedRows() const;
    LayoutsPaneModel::DragSource sourceOf(id source) const;
    bool keyDown(NSEvent* event) const;
    void doubleClicked() const;

    Actions actions;
    LayoutsPaneModel* dragging = nullptr; // null where nothing can be dragged
    std::vector<Row> shown;
    bool isQuiet = false; // while the selection is not the user's
    Retained<QuorvelLayoutTableView*> widget;
    Retained<NSScrollView*> scroll;
    Retained<QuorvelLayoutTableSource*> source;
    Retained<QuorvelActionTarget*> doubleClick;
};

} // namespace quorvel::macos
