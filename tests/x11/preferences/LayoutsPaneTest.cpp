#include <QLineEdit>
#include <map>
#include <string>
#include <vector>

#include "x11/preferences/PreferencesTest.h"

namespace quorvel::x11 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LayoutsPane : public PreferencesTest {
protected:
    void waitForSelection(const std::vector<std::string>& ids) { waitUntilStored("selectedLayoutIDs", strings(ids)); }

    void waitForDigit(const std::string& row, const std::string& digit)
    {
        session.waitFor("the digit of \"" + row + "\"", [&] { return ShellPerson::digit(row) == digit; });
    }

    // The digits by the layouts' ids.
    static PropertyValue digits(const std::map<std::string, std::string>& byID)
    {
        PropertyDictionary dictionary;
        for (const auto& [id, digit] : byID) {
            dictionary[id] = {digit};
        }
        return {dictionary};
    }
};

TEST_F(LayoutsPane, ARowIsDraggedToAnotherPlace)
{
    inPane("Layouts", [&] {
        person.dragRowBefore("Selected", "Full Screen", "Two Side by Side");
        waitForSelection(
            {"centered", "one_full_screen", "two_side_by_side", "two_stacked", "three_side_by_side", "four_tiled"});
        session.waitFor("the rows to follow", [] {
            const auto* const table = ShellPerson::list("Selected");
            return table->item(1)->data(Qt::AccessibleTextRole).toString() == "Full Screen";
        });
        EXPECT_THAT(person.selectedRows("Selected"), ElementsAre("Full Screen"));
        person.dragRowBehind("Selected", "Full Screen", "Four Tiles");
        waitForSelection(
            {"centered", "two_side_by_side", "two_stacked", "three_side_by_side", "four_tiled", "one_full_screen"});
    });
}

TEST_F(LayoutsPane, SeveralRowsAreDraggedAsOneBlock)
{
    inPane("Layouts", [&] {
        person.clickRow("Selected", "Full Screen");
        person.clickRow("Selected", "Two Side by Side", {Modifier::control});
        session.waitFor("two selected rows", [] { return ShellPerson::list("Selected")->selectedItems().size() == 2; });
        person.dragRowBehind("Selected", "Full Screen", "Two Stacked");
        waitForSelection(
            {"centered", "two_stacked", "one_full_screen", "two_side_by_side", "three_side_by_side", "four_tiled"});
        session.waitFor("the rows to follow", [] {
            const auto* const table = ShellPerson::list("Selected");
            return table->item(2)->data(Qt::AccessibleTextRole).toString() == "Full Screen";
        });
        EXPECT_THAT(person.selectedRows("Selected"), ElementsAre("Full Screen", "Two Side by Side"));
    });
}

TEST_F(LayoutsPane, RowsAreMovedByAltAndTheArrowKeys)
{
    inPane("Layouts", [&] {
        person.focus("Selected");
        person.tap(XKB_KEY_Down); // from the first row
        person.tap(XKB_KEY_Up, {Modifier::option});
        waitForSelection(
            {"centered", "one_full_screen", "two_side_by_side", "two_stacked", "three_side_by_side", "four_tiled"});
        person.tap(XKB_KEY_Down, {Modifier::shift});
        person.tap(XKB_KEY_Down, {Modifier::option});
        person.tap(XKB_KEY_Down, {Modifier::option});
        waitForSelection(
            {"two_side_by_side", "two_stacked", "centered", "one_full_screen", "three_side_by_side", "four_tiled"});
        session.waitFor("the rows to follow", [] {
            const auto* const table = ShellPerson::list("Selected");
            return table->item(2)->data(Qt::AccessibleTextRole).toString() == "Centered" && table->currentRow() == 3 &&
                   table->hasFocus();
        });
        EXPECT_THAT(person.selectedRows("Selected"), ElementsAre("Centered", "Full Screen"));
    });
}

TEST_F(LayoutsPane, ADigitMovesFromItsOldOwner)
{
    inPane("Layouts", [&] {
        person.clickRow("Selected", "Full Screen");
        person.typeDigit("Centered", {XKB_KEY_7});
        waitForDigit("Centered", "7");
        person.typeDigit("Four Tiles", {XKB_KEY_7});
        waitUntilStored("layoutShortcuts", digits({{"one_full_screen", "1"},
                                                   {"two_side_by_side", "3"},
                                                   {"two_stacked", "4"},
                                                   {"three_side_by_side", "5"},
                                                   {"four_tiled", "7"}}));
        waitForDigit("Centered", "");
        EXPECT_EQ(person.rows("Selected").size(), 6U) << "Return in a field removes nothing";
    });
}

TEST_F(LayoutsPane, WhatIsNoDigitGoesAndAnEmptyFieldTakesTheDigitAway)
{
    inPane("Layouts", [&] {
        const auto before = stored("layoutShortcuts");
        for (const auto& typed : std::vector<std::vector<xcb_keysym_t>>{
                 {XKB_KEY_0}, {XKB_KEY_1, XKB_KEY_2}, {XKB_KEY_a}, {XKB_KEY_minus}}) {
            person.typeDigit("Centered", typed);
            waitForDigit("Centered", "2");
            EXPECT_EQ(stored("layoutShortcuts"), before);
        }
        person.typeDigit("Centered", {});
        waitUntilStored("layoutShortcuts", digits({{"one_full_screen", "1"},
                                                   {"two_side_by_side", "3"},
                                                   {"two_stacked", "4"},
                                                   {"three_side_by_side", "5"},
                                                   {"four_tiled", "6"}}));
    });
}

TEST_F(LayoutsPane, DigitsAreTypedFromFieldToFieldByTheTabKey)
{
    inPane("Layouts", [&] {
        person.typeDigit("Centered", {XKB_KEY_9});
        waitForDigit("Centered", "9");
        for (const auto key : {XKB_KEY_Tab, XKB_KEY_8, XKB_KEY_Tab, XKB_KEY_7, XKB_KEY_Tab}) {
            person.tap(static_cast<xcb_keysym_t>(key));
        }
        waitUntilStored("layoutShortcuts", digits({{"one_full_screen", "1"},
                                                   {"centered", "9"},
                                                   {"two_side_by_side", "8"},
                                                   {"two_stacked", "7"},
                                                   {"three_side_by_side", "5"},
                                                   {"four_tiled", "6"}}));
    });
}

TEST_F(LayoutsPane, ADigitThatIsStoredForAnotherRowLeavesTheFieldWithTheKeyboardReadyForTheNextKey)
{
    inPane("Layouts", [&] {
        person.typeDigit("Centered", {XKB_KEY_9});
        waitForDigit("Centered", "9");
        person.tap(XKB_KEY_Tab);
        session.waitFor("the next field", [] {
            const auto* const field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
            return field != nullptr && field->selectedText() == "3";
        });
        changeFromOutside("layoutShortcuts", digits({{"two_side_by_side", "3"}, {"four_tiled", "7"}}));
        waitForDigit("Four Tiles", "7");
        person.tap(XKB_KEY_8);
        person.tap(XKB_KEY_Tab);
        waitUntilStored("layoutShortcuts", digits({{"two_side_by_side", "8"}, {"four_tiled", "7"}}));
    });
}

TEST_F(LayoutsPane, ADigitFieldStaysWithItsLayoutWhenTheOrderChangesUnderIt)
{
    inPane("Layouts", [&] {
        person.typeDigit("Centered", {XKB_KEY_8});
        waitForDigit("Centered", "8");
        const auto before = stored("layoutShortcuts");
        changeFromOutside("selectedLayoutIDs", strings({"four_tiled", "two_stacked", "centered", "one_full_screen"}));
        session.waitFor("the other order", [] {
            return ShellPerson::list("Selected") != nullptr && ShellPerson::list("Selected")->count() == 4;
        });
        person.clickRow("Selected", "Full Screen");
        session.waitFor("the selection", [] { return ShellPerson::list("Selected")->selectedItems().size() == 1; });
        EXPECT_EQ(stored("layoutShortcuts"), before);
    });
}

TEST_F(LayoutsPane, LayoutsAreAddedByButtonAndByDoubleClick)
{
    inPane("Layouts", [&] {
        EXPECT_FALSE(person.isEnabled("Add to Selected"));
        person.clickRow("Available", "Centered");
        person.clickRow("Available", "Six Tiles", {Modifier::control});
        person.click("Add to Selected"); // "Centered" is there already
        waitForSelection({"one_full_screen", "centered", "two_side_by_side", "two_stacked", "three_side_by_side",
                          "four_tiled", "six_tiled"});
        person.doubleClickRow("Available", "Nine Tiles");
        waitForSelection({"one_full_screen", "centered", "two_side_by_side", "two_stacked", "three_side_by_side",
                          "four_tiled", "six_tiled", "nine_tiled"});
    });
}

TEST_F(LayoutsPane, LayoutsAreRemovedByButtonByDoubleClickAndByTheDeleteKey)
{
    inPane("Layouts", [&] {
        EXPECT_FALSE(person.isEnabled("Remove from Selected"));
        person.clickRow("Selected", "Full Screen");
        person.clickRow("Selected", "Two Side by Side", {Modifier::control});
        person.click("Remove from Selected");
        waitForSelection({"centered", "two_stacked", "three_side_by_side", "four_tiled"});
        waitUntilStored(
            "layoutShortcuts",
            digits({{"centered", "2"}, {"two_stacked", "4"}, {"three_side_by_side", "5"}, {"four_tiled", "6"}}));
        person.doubleClickRow("Selected", "Two Stacked");
        waitForSelection({"centered", "three_side_by_side", "four_tiled"});
        person.clickRow("Selected", "Four Tiles");
        person.tap(XKB_KEY_Delete);
        waitForSelection({"centered", "three_side_by_side"});
    });
}

TEST_F(LayoutsPane, AClickOnASectionHidesItsRowsAndAnotherOneShowsThem)
{
    inPane("Layouts", [&] {
        const auto all = person.rows("Available");
        person.clickRow("Available", "1 Window");
        session.waitFor("the section to close",
                        [&] { return ShellPerson::list("Available")->count() == static_cast<int>(all.size()) - 4; });
        EXPECT_EQ(person.rows("Available").at(0), "1 Window");
        EXPECT_EQ(person.rows("Available").at(1), "2 Windows");
        EXPECT_THAT(person.selectedRows("Available"), IsEmpty());
        person.clickRow("Available", "1 Window");
        session.waitFor("the section to open",
                        [&] { return ShellPerson::list("Available")->count() == static_cast<int>(all.size()); });
        EXPECT_EQ(person.rows("Available"), all);
    });
}

TEST_F(LayoutsPane, TheTablesWorkByTheKeyboardAlone)
{
    inPane("Layouts", [&] {
        person.focus("Selected");
        person.tap(XKB_KEY_Down); // from the first row
        person.tap(XKB_KEY_Delete);
        waitForSelection({"one_full_screen", "two_side_by_side", "two_stacked", "three_side_by_side", "four_tiled"});
        person.focus("Available");
        person.tap(XKB_KEY_End);
        person.tap(XKB_KEY_Return);
        waitForSelection(
            {"one_full_screen", "two_side_by_side", "two_stacked", "three_side_by_side", "four_tiled", "nine_tiled"});
    });
}

} // namespace
} // namespace quorvel::x11
