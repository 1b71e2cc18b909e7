#include "platform/macos/preferences/LayoutTable.h"

#include <utility>

#include "platform/macos/Strings.h"
#include "platform/macos/preferences/ScrollingViews.h"

namespace quorvel::macos {

LayoutTable::LayoutTable(const std::string& accessibleName, Actions actions)
    : actions(std::move(actions)),
      widget(Retained<QuorvelLayoutTableView*>::adopt([[QuorvelLayoutTableView alloc] initWithFrame:NSZeroRect])),
      scroll(createScrollView(widget.get())),
      source(Retained<QuorvelLayoutTableSource*>::adopt([[QuorvelLayoutTableSource alloc] init])),
      doubleClick(Retained<QuorvelActionTarget*>::adopt([[QuorvelActionTarget alloc] init]))
{
    const auto column = Retained<NSTableColumn*>::adopt([[NSTableColumn alloc] initWithIdentifier:@"layout"]);
    [column.get() setEditable:NO];
    NSTableView* const table = widget.get();
    [table addTableColumn:column.get()];
    [table setHeaderView:nil];
    [table setAllowsMultipleSelection:YES];
    [table setAllowsEmptySelection:YES];
    [table setColumnAutoresizingStyle:NSTableViewUniformColumnAutoresizingStyle];
    [table setAccessibilityLabel:nsString(accessibleName)];
    [scroll.get() setBorderType:NSLineBorder];
    [scroll.get() setDrawsBackground:YES];

    [source.get() setTable:this];
    [table setDataSource:source.get()];
    [table setDelegate:source.get()];
    [doubleClick.get() setAction:[this] { doubleClicked(); }];
    [table setTarget:doubleClick.get()];
    [table setDoubleAction:@selector(act:)];
    [widget.get() setKeyDown:[this](NSEvent* event) { return keyDown(event); }];
}

LayoutTable::~LayoutTable()
{
    [source.get() setTable:nullptr];
    [widget.get() setDataSource:nil];
    [widget.get() setDelegate:nil];
    [widget.get() setTarget:nil];
    [widget.get() setKeyDown:{}];
}

void LayoutTable::enableDragging(LayoutsPaneModel& model)
{
    dragging = &model;
    [widget.get() registerForDraggedTypes:@[ nsString(model.dragType()) ]];
    [widget.get() setDraggingSourceOperationMask:NSDragOperationMove forLocal:YES];
    [widget.get() setDraggingSourceOperationMask:NSDragOperationNone forLocal:NO];
}

void LayoutTable::setRows(std::vector<Row> newRows)
{
    const bool wasQuiet = std::exchange(isQuiet, true);
    const auto replaced = std::exchange(shown, std::move(newRows)); // until the table has let them go
    [widget.get() reloadData];
    isQuiet = wasQuiet;
}

void LayoutTable::selectRows(const TableSelection& selection)
{
    if (selection == selectedRows()) {
        return;
    }
    const auto indexes = Retained<NSMutableIndexSet*>::adopt([[NSMutableIndexSet alloc] init]);
    for (const std::size_t row : selection) {
        [indexes.get() addIndex:row];
    }
    const bool wasQuiet = std::exchange(isQuiet, true);
    [widget.get() selectRowIndexes:indexes.get() byExtendingSelection:NO];
    isQuiet = wasQuiet;
}

void LayoutTable::setFrame(const NSRect& frame) const
{
    [scroll.get() setFrame:frame];
    [widget.get() sizeLastColumnToFit];
}

void LayoutTable::takeKeyboard() const
{
    [[widget.get() window] makeFirstResponder:widget.get()];
}

void LayoutTable::selectionChanged() const
{
    if (!isQuiet) {
        actions.select(selectedRows());
    }
}

std::optional<LayoutTable::DraggedItem> LayoutTable::draggedItem(std::size_t row) const
{
    if (dragging == nullptr) {
        return std::nullopt;
    }
    return DraggedItem{std::string(dragging->dragType()), dragging->dragItem(row)};
}

bool LayoutTable::acceptsDrop(id from) const
{
    return dragging != nullptr && dragging->acceptsDrop(sourceOf(from));
}

bool LayoutTable::drop(id from, NSArray* items, std::size_t beforeRow) const
{
    if (dragging == nullptr) {
        return false;
    }
    std::vector<std::string> texts;
    for (NSPasteboardItem* item in items) {
        if (NSString* const text = [item stringForType:nsString(dragging->dragType())]) {
            texts.push_back(utf8(text));
        }
    }
    return dragging->drop(sourceOf(from), texts, beforeRow);
}

LayoutsPaneModel::DragSource LayoutTable::sourceOf(id from) const
{
    return from == widget.get() ? LayoutsPaneModel::DragSource::selectedTable : LayoutsPaneModel::DragSource::elsewhere;
}

TableSelection LayoutTable::selectedRows() const
{
    TableSelection rows;
    NSIndexSet* const indexes = [widget.get() selectedRowIndexes];
    for (NSUInteger row = [indexes firstIndex]; row != NSNotFound; row = [indexes indexGreaterThanIndex:row]) {
        rows.push_back(row);
    }
    return rows;
}

bool LayoutTable::keyDown(NSEvent* event) const
{
    NSString* const characters = [event charactersIgnoringModifiers];
    if ([characters length] != 1) {
        return false;
    }
    const unichar key = [characters characterAtIndex:0];
    const NSInteger row = [widget.get() selectedRow];
    const bool hasOption = ([event modifierFlags] & NSEventModifierFlagOption) != 0;
    if ((key == NSCarriageReturnCharacter || key == NSEnterCharacter) && row >= 0) {
        actions.activate(static_cast<std::size_t>(row));
    } else if ((key == NSDeleteCharacter || key == NSDeleteFunctionKey) && actions.remove) {
        actions.remove();
    } else if ((key == NSUpArrowFunctionKey || key == NSDownArrowFunctionKey) && hasOption && actions.move) {
        actions.move(key == NSUpArrowFunctionKey ? LayoutsPaneModel::RowMove::up : LayoutsPaneModel::RowMove::down);
    } else {
        return false;
    }
    return true;
}

void LayoutTable::doubleClicked() const
{
    const NSInteger row = [widget.get() clickedRow];
    if (row >= 0 && !shown.at(static_cast<std::size_t>(row)).isHeader) {
        actions.activate(static_cast<std::size_t>(row));
    }
}

} // namespace quorvel::macos
