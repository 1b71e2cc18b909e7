#include <vector>

#include "macos/preferences/PreferencesTest.h"
#include "unit/layouts/CatalogueFixture.h"

// What tables ask that GNUstep's do not.
@interface NSObject (TablesOfViews)

- (NSView*)tableView:(NSTableView*)table viewForTableColumn:(NSTableColumn*)column row:(NSInteger)row;
- (BOOL)tableView:(NSTableView*)table isGroupRow:(NSInteger)row;
- (id)tableView:(NSTableView*)table pasteboardWriterForRow:(NSInteger)row;

@end

// A drag over a table, with the items that its rows gave.
@interface QuorvelTestDrag : NSObject {
    id _source;
    NSArray* _items;
}

+ (QuorvelTestDrag*)dragFrom:(id)source items:(NSArray*)items;

@end

@implementation QuorvelTestDrag

+ (QuorvelTestDrag*)dragFrom:(id)source items:(NSArray*)items
{
    QuorvelTestDrag* const drag = [[[QuorvelTestDrag alloc] init] autorelease];
    drag->_source = source;
    drag->_items = [items retain];
    return drag;
}

- (void)dealloc
{
    [_items release];
    [super dealloc];
}

- (id)draggingSource
{
    return _source;
}

- (id)draggingPasteboard
{
    return self;
}

- (NSArray*)pasteboardItems
{
    return _items;
}

@end

namespace quorvel::macos {
namespace {

using Texts = std::vector<std::string>;

class LayoutsPaneTest : public PreferencesTest {
protected:
    static constexpr NSInteger layoutsTab = 5;

    void openWith(const Texts& selection)
    {
        desktop.bundle.addResource("layouts", "json", std::string(sevenLayouts));
        PropertyArray ids;
        for (const auto& id : selection) {
            ids.push_back({id});
        }
        desktop.userDefaults.setObject("selectedLayoutIDs", {ids});
        open();
        chooseTab(layoutsTab);
    }

    static NSTableView* available() { return control<NSTableView>("Available"); }
    static NSTableView* selected() { return control<NSTableView>("Selected"); }

    static NSView* viewAt(NSTableView* table, NSInteger row)
    {
        return [static_cast<id>([table delegate]) tableView:table viewForTableColumn:nil row:row];
    }

    static Texts names(NSTableView* table)
    {
        Texts result;
        for (NSInteger row = 0; row < [[table dataSource] numberOfRowsInTableView:table]; ++row) {
            NSView* const view = viewAt(table, row);
            result.push_back(utf8([view isKindOfClass:[NSTableCellView class]]
                                      ? [[static_cast<NSTableCellView*>(view) textField] stringValue]
                                      : [static_cast<NSButton*>(view) title]));
        }
        return result;
    }

    void select(NSTableView* table, NSUInteger row)
    {
        [table selectRowIndexes:[NSIndexSet indexSetWithIndex:row] byExtendingSelection:NO];
        desktop.drain();
    }

    static NSTextField* digitField(NSInteger row)
    {
        for (NSView* const each : person::viewsIn(viewAt(selected(), row))) {
            if ([each isKindOfClass:[NSTextField class]] && [static_cast<NSTextField*>(each) isEditable]) {
                return static_cast<NSTextField*>(each);
            }
        }
        return nil;
    }

    void typeDigit(NSInteger row, NSString* digit)
    {
        NSTextField* const field = digitField(row);
        [field setStringValue:digit];
        [static_cast<id>([field delegate]) controlTextDidEndEditing:[NSNotification notificationWithName:@"ended"
                                                                                                  object:field]];
        desktop.drain();
    }

    Texts digits()
    {
        Texts result;
        for (NSInteger row = 0; row < [[selected() dataSource] numberOfRowsInTableView:selected()]; ++row) {
            result.push_back(utf8([digitField(row) stringValue]));
        }
        return result;
    }

    NSArray* dragged(const std::vector<NSInteger>& rows)
    {
        NSMutableArray* const items = [NSMutableArray array];
        for (const NSInteger row : rows) {
            [items addObject:[static_cast<id>([selected() dataSource]) tableView:selected()
                                                          pasteboardWriterForRow:row]];
        }
        return items;
    }

    bool drop(id source, NSArray* items, NSInteger row)
    {
        const id drag = [QuorvelTestDrag dragFrom:source items:items];
        const bool isDone = [[selected() dataSource] tableView:selected()
                                                    acceptDrop:drag
                                                           row:row
                                                 dropOperation:NSTableViewDropAbove];
        desktop.drain();
        return isDone;
    }

    NSDragOperation validated(id source)
    {
        const id drag = [QuorvelTestDrag dragFrom:source items:@[]];
        return [[selected() dataSource] tableView:selected()
                                     validateDrop:drag
                                      proposedRow:0
                            proposedDropOperation:NSTableViewDropOn];
    }
};

TEST_F(LayoutsPaneTest, SectionsAreGroupRowsThatCannotBeSelected)
{
    openWith({"centered"});
    const id delegate = [available() delegate];
    EXPECT_TRUE([delegate tableView:available() isGroupRow:0]);
    EXPECT_FALSE([delegate tableView:available() shouldSelectRow:0]);
    EXPECT_EQ([delegate tableView:available() heightOfRow:0], 28.0);
    EXPECT_FALSE([delegate tableView:available() isGroupRow:1]);
    EXPECT_TRUE([delegate tableView:available() shouldSelectRow:1]);
    EXPECT_EQ([delegate tableView:available() heightOfRow:1], 56.0);
    EXPECT_EQ(names(available()), (Texts{"1 Window", "Full", "Centered", "Extra", "2 Windows", "Side", "Stacked",
                                         "3 Windows", "Three", "4 Windows", "Four"}));
    EXPECT_EQ(names(selected()), (Texts{"Centered"}));
}

TEST_F(LayoutsPaneTest, AClickOnASectionHidesAndShowsItsRows)
{
    openWith({});
    use(static_cast<NSButton*>(viewAt(available(), 0)));
    EXPECT_EQ(names(available()).at(1), "2 Windows");
    use(static_cast<NSButton*>(viewAt(available(), 0)));
    EXPECT_EQ(names(available()).at(1), "Full");
}

TEST_F(LayoutsPaneTest, TheSelectedRowIsAddedAndRemoved)
{
    openWith({"centered"});
    EXPECT_FALSE([control<NSButton>("Add to Selected") isEnabled]);
    select(available(), 1);
    EXPECT_TRUE([control<NSButton>("Add to Selected") isEnabled]);
    press("Add to Selected");
    EXPECT_EQ(names(selected()), (Texts{"Centered", "Full"}));
    select(selected(), 0);
    press("Remove from Selected");
    EXPECT_EQ(names(selected()), (Texts{"Full"}));
}

TEST_F(LayoutsPaneTest, ADigitMovesToTheLayoutItIsTypedFor)
{
    openWith({"centered", "extra"});
    typeDigit(0, @"7");
    EXPECT_EQ(digits(), (Texts{"7", ""}));
    typeDigit(1, @"7");
    EXPECT_EQ(digits(), (Texts{"", "7"}));
    typeDigit(1, @"");
    EXPECT_EQ(digits(), (Texts{"", ""}));
}

TEST_F(LayoutsPaneTest, WhatIsNoDigitGoesFromTheField)
{
    openWith({"centered"});
    typeDigit(0, @"7");
    for (NSString* const wrong : {@"0", @"12", @"a"}) {
        typeDigit(0, wrong);
        EXPECT_EQ(digits(), (Texts{"7"})) << utf8(wrong);
    }
}

TEST_F(LayoutsPaneTest, RowsAreDroppedAsOneBlockInTheirOrder)
{
    openWith({"centered", "extra", "two_stacked", "four_tiled"});
    EXPECT_EQ(validated(selected()), NSDragOperationMove);
    EXPECT_TRUE(drop(selected(), dragged({2, 0}), 4));
    EXPECT_EQ(names(selected()), (Texts{"Extra", "Four", "Centered", "Stacked"}));
    EXPECT_EQ([[selected() selectedRowIndexes] count], 2U);
    EXPECT_TRUE([selected() isRowSelected:2]);
    EXPECT_TRUE([selected() isRowSelected:3]);
}

TEST_F(LayoutsPaneTest, ADropFromElsewhereIsRefused)
{
    openWith({"centered", "extra"});
    EXPECT_EQ(validated(available()), NSDragOperationNone);
    EXPECT_FALSE(drop(available(), dragged({1}), 0));
    EXPECT_EQ(names(selected()), (Texts{"Centered", "Extra"}));
}

TEST_F(LayoutsPaneTest, ADraggedRowIsItsIndexUnderThePrivateType)
{
    openWith({"centered", "extra"});
    NSPasteboardItem* const item = [dragged({1}) objectAtIndex:0];
    const auto& pane = *std::get<LayoutsPaneModel*>(controller->content().tabs.at(layoutsTab).pane);
    const std::string type(pane.dragType());
    EXPECT_TRUE(type.ends_with(".layouts.selected.row"));
    EXPECT_EQ(utf8([item stringForType:nsString(type)]), "1");
    EXPECT_EQ([static_cast<id>([available() dataSource]) tableView:available() pasteboardWriterForRow:1], nil);
}

TEST_F(LayoutsPaneTest, KeysRemoveAndMoveTheSelectedRows)
{
    openWith({"centered", "extra"});
    const auto press = [this](unichar key, NSUInteger flags) {
        NSString* const characters = [NSString stringWithCharacters:&key length:1];
        [selected() keyDown:[NSEvent keyEventWithType:NSEventTypeKeyDown
                                                   location:NSZeroPoint
                                              modifierFlags:flags
                                                  timestamp:0.0
                                               windowNumber:[window() windowNumber]
                                                    context:nil
                                                 characters:characters
                                charactersIgnoringModifiers:characters
                                                  isARepeat:NO
                                                    keyCode:0]];
        desktop.drain();
    };
    select(selected(), 0);
    press(NSDownArrowFunctionKey, NSEventModifierFlagOption);
    EXPECT_EQ(names(selected()), (Texts{"Extra", "Centered"}));
    press(NSDeleteCharacter, 0);
    EXPECT_EQ(names(selected()), (Texts{"Extra"}));
}

} // namespace
} // namespace quorvel::macos
