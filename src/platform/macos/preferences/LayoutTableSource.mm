#include "platform/macos/preferences/LayoutTableSource.h"

#include "platform/macos/Strings.h"
#include "platform/macos/preferences/LayoutTable.h"

using namespace quorvel;

namespace {

std::size_t rowIndex(NSInteger row)
{
    return static_cast<std::size_t>(row);
}

} // namespace

@implementation QuorvelLayoutTableSource

- (void)setTable:(macos::LayoutTable*)newTable
{
    table = newTable;
}

- (NSInteger)numberOfRowsInTableView:(NSTableView*)tableView
{
    return table == nullptr ? 0 : static_cast<NSInteger>(table->rows().size());
}

- (NSView*)tableView:(NSTableView*)tableView viewForTableColumn:(NSTableColumn*)column row:(NSInteger)row
{
    return table->rows().at(rowIndex(row)).view.get();
}

- (CGFloat)tableView:(NSTableView*)tableView heightOfRow:(NSInteger)row
{
    return table->rows().at(rowIndex(row)).height;
}

- (BOOL)tableView:(NSTableView*)tableView isGroupRow:(NSInteger)row
{
    return table->rows().at(rowIndex(row)).isHeader;
}

- (BOOL)tableView:(NSTableView*)tableView shouldSelectRow:(NSInteger)row
{
    return !table->rows().at(rowIndex(row)).isHeader;
}

- (NSString*)tableView:(NSTableView*)tableView typeSelectStringForTableColumn:(NSTableColumn*)column row:(NSInteger)row
{
    const auto& shown = table->rows().at(rowIndex(row));
    return shown.isHeader ? nil : macos::nsString(shown.name);
}

- (void)tableViewSelectionDidChange:(NSNotification*)notification
{
    if (table != nullptr) {
        table->selectionChanged();
    }
}

- (id<NSPasteboardWriting>)tableView:(NSTableView*)tableView pasteboardWriterForRow:(NSInteger)row
{
    const auto item = table->draggedItem(rowIndex(row));
    if (!item) {
        return nil;
    }
    NSPasteboardItem* const writer = [[[NSPasteboardItem alloc] init] autorelease];
    [writer setString:macos::nsString(item->text) forType:macos::nsString(item->type)];
    return writer;
}

- (NSDragOperation)tableView:(NSTableView*)tableView
                validateDrop:(id<NSDraggingInfo>)info
                 proposedRow:(NSInteger)row
       proposedDropOperation:(NSTableViewDropOperation)operation
{
    if (!table->acceptsDrop([info draggingSource])) {
        return NSDragOperationNone;
    }
    // Between rows, never onto one.
    [tableView setDropRow:row dropOperation:NSTableViewDropAbove];
    return NSDragOperationMove;
}

- (BOOL)tableView:(NSTableView*)tableView
       acceptDrop:(id<NSDraggingInfo>)info
              row:(NSInteger)row
    dropOperation:(NSTableViewDropOperation)operation
{
    return table->drop([info draggingSource], [[info draggingPasteboard] pasteboardItems], rowIndex(row));
}

@end
