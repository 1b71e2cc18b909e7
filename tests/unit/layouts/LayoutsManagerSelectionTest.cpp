#include <cstdint>
#include <stdexcept>
#include <string>

#include "base/FatalError.h"
#include "tests/unit/layouts/LayoutsManagerFixture.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using Entry = LayoutShortcutEntry;

class LayoutsManagerSelection : public LayoutsManagerFixture {
protected:
    LayoutsManagerSelection() { load(sevenLayouts); }
};

TEST_F(LayoutsManagerSelection, KeepsTheOrderOfTheUser)
{
    select({"four_tiled", "centered"});
    EXPECT_THAT(ids(), ElementsAre("four_tiled", "centered"));
    manager.selectPreviousLayout();
    EXPECT_EQ(manager.selectedLayoutIndex(), 1);
}

TEST_F(LayoutsManagerSelection, NoneMeansTheWholeCatalogueInTheOrderOfItsFile)
{
    EXPECT_THAT(ids(), SizeIs(7));
    EXPECT_EQ(ids().back(), "extra");
    select({});
    EXPECT_THAT(ids(), SizeIs(7));
    desktop.userDefaults.setObject("selectedLayoutIDs", {std::string("centered")});
    EXPECT_THAT(ids(), SizeIs(7));
}

TEST_F(LayoutsManagerSelection, IdsOutsideTheCatalogueAreSkipped)
{
    select({"nope", "centered", "centered"});
    EXPECT_THAT(ids(), ElementsAre("centered", "centered"));
}

TEST_F(LayoutsManagerSelection, UnknownIdsAloneSelectNothing)
{
    select({"nope"});
    EXPECT_THAT(ids(), IsEmpty());
    manager.selectNextLayout();
    EXPECT_EQ(manager.selectedLayoutIndex(), 0);
    manager.selectPreviousLayout();
    EXPECT_EQ(manager.selectedLayoutIndex(), 0);
    EXPECT_EQ(manager.selectedLayout(), std::nullopt);
}

TEST_F(LayoutsManagerSelection, AChangeCountsAtTheNextQuestion)
{
    select({"centered"});
    EXPECT_THAT(ids(), ElementsAre("centered"));
    select({"extra", "centered"});
    EXPECT_THAT(ids(), ElementsAre("extra", "centered"));
}

TEST_F(LayoutsManagerSelection, AnIdThatOccursTwiceInTheCatalogueIsFatal)
{
    const auto interception =
        interceptFatalErrors([](std::string_view message) { throw std::runtime_error(std::string(message)); });
    load(R"({"layouts":[{"id":"a","name":"A","windows":[]},{"id":"a","name":"B","windows":[]}]})");
    EXPECT_THAT(ids(), SizeIs(2)); // nothing is selected, so no id is looked up
    select({"other"});
    EXPECT_THROW(manager.layouts(), std::runtime_error);
}

TEST_F(LayoutsManagerSelection, SteppingGoesAroundTheEnd)
{
    select({"centered", "extra"});
    EXPECT_EQ(manager.selectedLayoutIndex(), 0);
    manager.selectNextLayout();
    EXPECT_EQ(manager.selectedLayoutIndex(), 1);
    manager.selectNextLayout();
    EXPECT_EQ(manager.selectedLayoutIndex(), 0);
    manager.selectPreviousLayout();
    EXPECT_EQ(manager.selectedLayoutIndex(), 1);
}

TEST_F(LayoutsManagerSelection, AShrunkenSelectionLeavesTheIndexOutsideUntilTheNextStep)
{
    const std::vector<std::string> eight(8, "centered");
    const std::vector<std::string> four(4, "centered");
    select(eight);
    stepTo(7);
    select(four);
    EXPECT_EQ(manager.selectedLayoutIndex(), 7);
    EXPECT_EQ(manager.selectedLayout(), std::nullopt);
    manager.selectNextLayout();
    EXPECT_EQ(manager.selectedLayoutIndex(), 0);

    select(eight);
    stepTo(7);
    select(four);
    manager.selectPreviousLayout();
    EXPECT_EQ(manager.selectedLayoutIndex(), 2);
}

TEST_F(LayoutsManagerSelection, AStepFromFarOutsideLandsInside)
{
    for (const auto step : {&LayoutsManager::selectNextLayout, &LayoutsManager::selectPreviousLayout}) {
        select(std::vector<std::string>(6, "centered"));
        stepTo(5);
        select({"centered", "extra"});
        (manager.*step)();
        EXPECT_EQ(manager.selectedLayoutIndex(), 0);
    }
}

TEST_F(LayoutsManagerSelection, AStepThroughAnEmptySelectionBeginsAgain)
{
    stepTo(3);
    select({"nope"});
    manager.selectNextLayout();
    EXPECT_EQ(manager.selectedLayoutIndex(), 0);
}

TEST_F(LayoutsManagerSelection, IndexFourOfThreeStepsToTwoOrZero)
{
    const std::vector<std::string> three(3, "centered");
    stepTo(4);
    select(three);
    manager.selectNextLayout();
    EXPECT_EQ(manager.selectedLayoutIndex(), 2);
    select({});
    stepTo(4);
    select(three);
    manager.selectPreviousLayout();
    EXPECT_EQ(manager.selectedLayoutIndex(), 0);
}

TEST_F(LayoutsManagerSelection, ALayoutIsFoundByItsExactIdAmongTheSelectedOnes)
{
    manager.seedDefaultLayoutsIfNeeded();
    EXPECT_TRUE(manager.selectLayoutWithID("two_stacked"));
    EXPECT_EQ(manager.selectedLayoutIndex(), 3);
    EXPECT_FALSE(manager.selectLayoutWithID("extra"));
    EXPECT_FALSE(manager.selectLayoutWithID("Four_tiled"));
    EXPECT_FALSE(manager.selectLayoutWithID(""));
    EXPECT_EQ(manager.selectedLayoutIndex(), 3);
    EXPECT_EQ(manager.selectedLayout().value().name, "Stacked");
}

TEST_F(LayoutsManagerSelection, OfAnIdSelectedTwiceTheFirstIsFound)
{
    select({"extra", "centered", "centered"});
    EXPECT_TRUE(manager.selectLayoutWithID("centered"));
    EXPECT_EQ(manager.selectedLayoutIndex(), 1);
}

TEST_F(LayoutsManagerSelection, AnotherLaunchBeginsWithTheFirstLayout)
{
    manager.seedDefaultLayoutsIfNeeded();
    stepTo(4);
    LayoutsManager next(desktop.bundle, settings, desktop.log);
    next.loadLayouts();
    EXPECT_EQ(next.selectedLayoutIndex(), 0);
}

TEST_F(LayoutsManagerSelection, SummariesCoverTheWholeCatalogueWhateverIsSelected)
{
    select({"extra"});
    const auto summaries = manager.allLayoutSummaries();
    ASSERT_EQ(summaries.size(), 7U);
    EXPECT_EQ(summaries.front(), (LayoutSummary{"one_full_screen", "Full"}));
    EXPECT_EQ(summaries.back(), (LayoutSummary{"extra", "Extra"}));
}

TEST_F(LayoutsManagerSelection, PicturesExistForLayoutsOutsideTheSelection)
{
    select({"centered"});
    EXPECT_THAT(manager.normalizedFramesForLayoutID("four_tiled"),
                ElementsAre(UnitRect{0.0, 0.5, 0.5, 0.5}, UnitRect{0.5, 0.5, 0.5, 0.5}, UnitRect{0.0, 0.0, 0.5, 0.5},
                            UnitRect{0.5, 0.0, 0.5, 0.5}));
    EXPECT_THAT(manager.normalizedFramesForLayoutID("nope"), IsEmpty());
}

TEST_F(LayoutsManagerSelection, PicturesOfFramesInPixelsFitTheUnitSquare)
{
    load(R"({"layouts":[{"id":"pixels","name":"Pixels","windows":[
        {"bottom_left_x":0,"bottom_left_y":0,"top_right_x":960,"top_right_y":1080},
        {"bottom_left_x":960,"bottom_left_y":0,"top_right_x":1920,"top_right_y":1080}]}]})");
    EXPECT_THAT(manager.normalizedFramesForLayoutID("pixels"),
                ElementsAre(UnitRect{0.0, 0.0, 0.5, 1.0}, UnitRect{0.5, 0.0, 0.5, 1.0}));
}

class LayoutsManagerDigits : public LayoutsManagerSelection {};

TEST_F(LayoutsManagerDigits, TheLegendListsLayoutsByDigitAndMarksTheCurrentOne)
{
    manager.seedDefaultLayoutsIfNeeded();
    setDigits({{"one_full_screen", "3"}, {"centered", "1"}, {"four_tiled", "2"}});
    EXPECT_THAT(manager.legendEntries(),
                ElementsAre(Entry{"1", "Centered", false}, Entry{"2", "Four", false}, Entry{"3", "Full", true}));
    manager.selectNextLayout();
    EXPECT_THAT(manager.legendEntries(),
                ElementsAre(Entry{"1", "Centered", true}, Entry{"2", "Four", false}, Entry{"3", "Full", false}));
}

TEST_F(LayoutsManagerDigits, TheLegendLeavesOutWhatIsNotSelected)
{
    select({"centered", "four_tiled"});
    setDigits({{"extra", "1"}, {"four_tiled", "2"}});
    EXPECT_THAT(manager.legendEntries(), ElementsAre(Entry{"2", "Four", false}));
}

TEST_F(LayoutsManagerDigits, LayoutsWithTheSameDigitKeepTheirOrder)
{
    select({"four_tiled", "extra", "centered"});
    setDigits({{"centered", "2"}, {"four_tiled", "2"}, {"extra", "1"}});
    EXPECT_THAT(manager.legendEntries(),
                ElementsAre(Entry{"1", "Extra", false}, Entry{"2", "Four", true}, Entry{"2", "Centered", false}));
}

TEST_F(LayoutsManagerDigits, AnIndexOutsideLeavesEveryEntryInactive)
{
    manager.seedDefaultLayoutsIfNeeded();
    stepTo(4);
    select({"one_full_screen", "centered", "two_side_by_side"});
    EXPECT_THAT(manager.legendEntries(),
                ElementsAre(Entry{"1", "Full", false}, Entry{"2", "Centered", false}, Entry{"3", "Side", false}));
}

TEST_F(LayoutsManagerDigits, ADigitThatIsNoTextEmptiesTheWholeMap)
{
    desktop.userDefaults.setObject(
        "layoutShortcuts", {PropertyDictionary{{"centered", {std::int64_t{2}}}, {"extra", {std::string("1")}}}});
    EXPECT_THAT(manager.legendEntries(), IsEmpty());
    EXPECT_EQ(manager.layoutIDForDigit("1"), std::nullopt);
    EXPECT_EQ(manager.layoutIDForDigit("2"), std::nullopt);
}

TEST_F(LayoutsManagerDigits, ADigitLeadsToItsLayout)
{
    manager.seedDefaultLayoutsIfNeeded();
    EXPECT_EQ(manager.layoutIDForDigit("4"), "two_stacked");
    EXPECT_EQ(manager.layoutIDForDigit("0"), std::nullopt);
    EXPECT_EQ(manager.layoutIDForDigit(""), std::nullopt);
}

TEST_F(LayoutsManagerDigits, OfLayoutsWithTheSameDigitTheFirstIdInTheAlphabetIsFound)
{
    setDigits({{"two_stacked", "5"}, {"centered", "5"}, {"extra", "5"}});
    EXPECT_EQ(manager.layoutIDForDigit("5"), "centered");
}

TEST_F(LayoutsManagerDigits, ADigitMayLeadOutsideTheSelection)
{
    select({"centered"});
    setDigits({{"extra", "5"}});
    EXPECT_EQ(manager.layoutIDForDigit("5"), "extra");
    EXPECT_THAT(manager.legendEntries(), IsEmpty());
}

} // namespace
} // namespace quorvel
