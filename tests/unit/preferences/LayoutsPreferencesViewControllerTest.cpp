#include "preferences/LayoutsPreferencesViewController.h"

#include <gmock/gmock.h>

#include "layouts/LayoutsManager.h"
#include "preferences/LayoutThumbnail.h"
#include "tests/support/FatalErrors.h"
#include "tests/unit/preferences/LayoutsPaneFixture.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LayoutsPreferencesViewControllerTest : public LayoutsPaneTest {};

TEST_F(LayoutsPreferencesViewControllerTest, AvailableLayoutsAreGroupedByTheirNumberOfFrames)
{
    EXPECT_THAT(available(),
                ElementsAre("# 1 Window", "one_full_screen", "centered", "extra", "# 2 Windows", "two_side_by_side",
                            "two_stacked", "# 3 Windows", "three_side_by_side", "# 4 Windows", "four_tiled"));
}

TEST_F(LayoutsPreferencesViewControllerTest, ACollapsedSectionShowsOnlyItsHeader)
{
    pane.clickHeader(4);
    EXPECT_THAT(available(), ElementsAre("# 1 Window", "one_full_screen", "centered", "extra", "# 2 Windows",
                                         "# 3 Windows", "three_side_by_side", "# 4 Windows", "four_tiled"));
    EXPECT_TRUE(std::get<LayoutSectionHeader>(pane.content().available[4].content).isCollapsed);
    pane.clickHeader(4);
    EXPECT_EQ(available().size(), 11U);
    pane.clickHeader(1);
    EXPECT_EQ(available().size(), 11U);
}

TEST_F(LayoutsPreferencesViewControllerTest, RowsHaveTheirHeights)
{
    select({"centered"});
    const auto content = pane.content();
    EXPECT_EQ(content.available[0].height, 28.0);
    EXPECT_EQ(content.available[1].height, 56.0);
    EXPECT_EQ(content.selected[0].height, 56.0);
}

TEST_F(LayoutsPreferencesViewControllerTest, AHeaderCannotBeSelected)
{
    pane.selectAvailable({0, 1, 4, 99});
    EXPECT_THAT(pane.content().availableSelection, ElementsAre(1U));
}

TEST_F(LayoutsPreferencesViewControllerTest, TheTextsAreThere)
{
    const auto content = pane.content();
    EXPECT_EQ(content.title, "Layouts");
    EXPECT_EQ(content.availableTitle, "Available");
    EXPECT_EQ(content.selectedTitle, "Selected");
    EXPECT_EQ(content.add.accessibleName, "Add to Selected");
    EXPECT_EQ(content.remove.accessibleName, "Remove from Selected");
    EXPECT_EQ(content.tip,
              "Tip: type a digit (1–9) next to a layout to jump straight to it while the overlay is open.");
    EXPECT_EQ(content.digitToolTip,
              "Assign a digit (1–9). Press it while the layout overlay is visible to jump straight here.");
    EXPECT_EQ(content.orderingToolTip, "Drag rows, or press Option+Up or Option+Down, to change the order.");
}

TEST_F(LayoutsPreferencesViewControllerTest, EachDigitFieldIsNamedAfterItsLayout)
{
    select({"two_side_by_side", "centered"});
    EXPECT_EQ(pane.content().selected[0].digitAccessibleName, "Digit of “Side”");
    EXPECT_EQ(pane.content().selected[1].digitAccessibleName, "Digit of “Centered”");
}

TEST_F(LayoutsPreferencesViewControllerTest, ACellShowsNameAndThumbnail)
{
    select({"two_side_by_side"});
    const auto cell = pane.content().selected[0].cell;
    EXPECT_EQ(cell.name, "Side");
    EXPECT_EQ(cell.thumbnailSize, (Size{48.0, 48.0}));
    EXPECT_EQ(cell.thumbnail,
              layoutThumbnail::drawing({{0.0, 0.0, 0.5, 1.0}, {0.5, 0.0, 0.5, 1.0}}, desktop.systemColors));
}

TEST_F(LayoutsPreferencesViewControllerTest, AddingSkipsHeadersAndLayoutsThatAreSelectedAlready)
{
    select({"centered"});
    pane.selectAvailable({0, 2, 3, 6});
    pane.press(pane.content().add.id);
    EXPECT_THAT(selected(), ElementsAre("centered", "extra", "two_stacked"));
    EXPECT_THAT(storedSelection(), ElementsAre("centered", "extra", "two_stacked"));
}

TEST_F(LayoutsPreferencesViewControllerTest, TheButtonsNeedASuitableSelection)
{
    select({"centered"});
    EXPECT_FALSE(pane.content().add.isEnabled);
    EXPECT_FALSE(pane.content().remove.isEnabled);
    pane.selectAvailable({0, 2});
    EXPECT_FALSE(pane.content().add.isEnabled);
    pane.selectAvailable({2, 3});
    EXPECT_TRUE(pane.content().add.isEnabled);
    pane.press(pane.content().add.id);
    EXPECT_FALSE(pane.content().add.isEnabled);
    pane.selectSelected({0});
    EXPECT_TRUE(pane.content().remove.isEnabled);
    pane.press(pane.content().remove.id);
    EXPECT_FALSE(pane.content().remove.isEnabled);
}

TEST_F(LayoutsPreferencesViewControllerTest, LayoutsOfACollapsedSectionCannotBeAdded)
{
    pane.selectAvailable({2, 5});
    pane.clickHeader(4);
    EXPECT_THAT(pane.content().availableSelection, ElementsAre(2U));
    pane.press(pane.content().add.id);
    EXPECT_THAT(selected(), ElementsAre("centered"));
}

TEST_F(LayoutsPreferencesViewControllerTest, TheSelectionFollowsItsLayoutsWhenRowsComeAndGo)
{
    pane.selectAvailable({8});
    pane.clickHeader(0);
    EXPECT_THAT(pane.content().availableSelection, ElementsAre(5U));
    pane.clickHeader(0);
    EXPECT_THAT(pane.content().availableSelection, ElementsAre(8U));
}

TEST_F(LayoutsPreferencesViewControllerTest, RemovingTakesTheDigitsAlong)
{
    select({"one_full_screen", "centered", "two_stacked", "extra"});
    setDigits({{"one_full_screen", "1"}, {"centered", "2"}, {"two_stacked", "3"}, {"four_tiled", "4"}});
    pane.selectSelected({2, 0});
    pane.press(pane.content().remove.id);
    EXPECT_THAT(selected(), ElementsAre("centered", "extra"));
    EXPECT_THAT(storedSelection(), ElementsAre("centered", "extra"));
    EXPECT_EQ(storedDigits(), (Digits{{"centered", "2"}, {"four_tiled", "4"}}));
    EXPECT_THAT(pane.content().selectedSelection, IsEmpty());
}

TEST_F(LayoutsPreferencesViewControllerTest, RemovingALayoutWithoutDigitLeavesTheDigitsAlone)
{
    select({"one_full_screen", "centered"});
    pane.selectSelected({0});
    pane.press(pane.content().remove.id);
    EXPECT_FALSE(settings.isStored("layoutShortcuts"));
    EXPECT_THAT(storedSelection(), ElementsAre("centered"));
}

TEST_F(LayoutsPreferencesViewControllerTest, ADoubleClickAddsOrRemoves)
{
    pane.doubleClickAvailable(0);
    EXPECT_THAT(selected(), IsEmpty());
    pane.doubleClickAvailable(3);
    EXPECT_THAT(storedSelection(), ElementsAre("extra"));
    pane.doubleClickSelected(5);
    pane.doubleClickSelected(0);
    EXPECT_THAT(storedSelection(), IsEmpty());
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(LayoutsPreferencesViewControllerTest, UnknownIdsVanishAtTheNextSaveOnly)
{
    select({"gone", "centered"});
    EXPECT_THAT(selected(), ElementsAre("centered"));
    EXPECT_THAT(storedSelection(), ElementsAre("gone", "centered"));
    EXPECT_TRUE(pane.drop(LayoutsPaneModel::DragSource::selectedTable, {"0"}, 0));
    EXPECT_THAT(storedSelection(), ElementsAre("centered"));
}

TEST_F(LayoutsPreferencesViewControllerTest, NothingIsSelectedWhileNothingIsStored)
{
    EXPECT_THAT(selected(), IsEmpty());
    EXPECT_EQ(storedSelection(), Texts{"nothing"});
}

TEST_F(LayoutsPreferencesViewControllerTest, AnIdThatIsStoredTwiceIsRemovedByRow)
{
    select({"centered", "extra", "centered"});
    setDigits({{"centered", "5"}});
    EXPECT_THAT(selected(), ElementsAre("centered", "extra", "centered"));
    pane.selectSelected({0});
    pane.press(pane.content().remove.id);
    EXPECT_THAT(storedSelection(), ElementsAre("extra", "centered"));
    EXPECT_EQ(storedDigits(), (Digits{{"centered", "5"}}));
    pane.selectSelected({1});
    pane.press(pane.content().remove.id);
    EXPECT_EQ(storedDigits(), Digits{});
}

TEST_F(LayoutsPreferencesViewControllerTest, TheOverlaysPlaceInTheSelectionIsUntouched)
{
    LayoutsManager overlays(desktop.bundle, settings, desktop.log);
    overlays.loadLayouts();
    select({"centered", "extra"});
    overlays.selectNextLayout();
    pane.doubleClickAvailable(1);
    pane.reload();
    EXPECT_EQ(overlays.selectedLayoutIndex(), 1);
}

TEST_F(LayoutsPreferencesViewControllerTest, EveryChangeIsAnnounced)
{
    int changes = 0;
    const auto token = pane.observe([&] { ++changes; });
    pane.selectAvailable({1, 2});
    EXPECT_EQ(changes, 1);
    pane.press(pane.content().add.id);
    EXPECT_EQ(changes, 2);
    pane.drop(LayoutsPaneModel::DragSource::selectedTable, {"0"}, 2);
    EXPECT_EQ(changes, 3);
    pane.endEditingDigit(0, "x");
    EXPECT_EQ(changes, 4);
    pane.selectSelected({0});
    EXPECT_EQ(changes, 5);
    pane.press(pane.content().remove.id);
    EXPECT_EQ(changes, 6);
    pane.clickHeader(0);
    EXPECT_EQ(changes, 7);
}

TEST_F(LayoutsPreferencesViewControllerTest, AButtonThatThePaneLacksIsFatal)
{
    EXPECT_EQ(fatalErrorOf([this] { pane.press("up"); }), "There is no control \"up\"");
}

TEST(LayoutsPreferencesViewController, ALayoutWithoutFramesHasASectionOfItsOwn)
{
    SimulatedDesktop desktop;
    desktop.bundle.addResource("layouts", "json", R"({"layouts": [{"id": "empty", "name": "Empty", "windows": []}]})");
    const auto platform = desktop.platform();
    const LayoutsPreferencesViewController pane(platform);
    const auto rows = pane.content().available;
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(std::get<LayoutSectionHeader>(rows[0].content).title, "0 Windows");
    EXPECT_EQ(std::get<LayoutCell>(rows[1].content).thumbnail.commands.size(), 5U);
}

} // namespace
} // namespace quorvel
