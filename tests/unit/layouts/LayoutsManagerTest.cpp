#include <string>
#include <vector>

#include "tests/unit/layouts/LayoutsManagerFixture.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

const std::vector<std::string> defaultSelection{"one_full_screen", "centered",           "two_side_by_side",
                                                "two_stacked",     "three_side_by_side", "four_tiled"};

class LayoutsManagerLoading : public LayoutsManagerFixture {};

TEST_F(LayoutsManagerLoading, AMissingCatalogueIsPassedOverInSilence)
{
    manager.loadLayouts();
    EXPECT_THAT(logLines(), IsEmpty());
    EXPECT_THAT(manager.layouts(), IsEmpty());
    EXPECT_THAT(manager.allLayoutSummaries(), IsEmpty());
    EXPECT_THAT(manager.legendEntries(), IsEmpty());
    EXPECT_THAT(manager.normalizedFramesForLayoutID("centered"), IsEmpty());
    EXPECT_EQ(manager.selectedLayout(), std::nullopt);
    manager.seedDefaultLayoutsIfNeeded();
    EXPECT_EQ(settings.stringArray("selectedLayoutIDs"), defaultSelection);
}

TEST_F(LayoutsManagerLoading, OneBadLayoutOfTenFailsTheWholeFile)
{
    std::string json = R"({"layouts":[)";
    for (int number = 0; number < 9; ++number) {
        json += R"({"id":"l)" + std::to_string(number) + R"(","name":"L","windows":[]},)";
    }
    load(json + R"({"id":"last","windows":[]}]})");
    EXPECT_THAT(logLines(), ElementsAre("Error reading layouts JSON asset: layouts[9].name is missing"));
    EXPECT_THAT(manager.layouts(), IsEmpty());
    EXPECT_THAT(manager.allLayoutSummaries(), IsEmpty());
}

TEST_F(LayoutsManagerLoading, AnUnreadableFileIsLogged)
{
    desktop.bundle.addUnreadableResource("layouts", "json", "Permission denied");
    manager.loadLayouts();
    EXPECT_THAT(logLines(), ElementsAre("Error reading layouts JSON asset: Permission denied"));
    EXPECT_THAT(manager.layouts(), IsEmpty());
}

TEST_F(LayoutsManagerLoading, ADamagedFileIsLoggedInOneLine)
{
    load(sevenLayouts.substr(0, 700));
    EXPECT_THAT(logLines(), ElementsAre(StartsWith("Error reading layouts JSON asset: parse error at line ")));
}

TEST_F(LayoutsManagerLoading, AFailureKeepsTheCatalogueThatWasLoadedBefore)
{
    load(sevenLayouts);
    load("{");
    EXPECT_THAT(manager.layouts(), SizeIs(7));
    desktop.bundle.removeResource("layouts", "json");
    manager.loadLayouts();
    EXPECT_THAT(manager.layouts(), SizeIs(7));
}

TEST_F(LayoutsManagerLoading, ALayoutWithMoreFramesThanLettersIsLeftOutAndNamed)
{
    const std::string window = R"({"bottom_left_x":0,"bottom_left_y":0,"top_right_x":1,"top_right_y":1})";
    std::string windows = window;
    for (int count = 1; count < 26; ++count) {
        windows += "," + window;
    }
    load(R"({"layouts":[{"id":"full","name":"Full","windows":[)" + windows +
         R"(]},{"id":"crowded","name":"Crowded","windows":[)" + windows + "," + window +
         R"(]},{"id":"empty","name":"Empty","windows":[]}]})");
    EXPECT_THAT(logLines(), ElementsAre("Layout left out for its 27 frames, more than 26: crowded"));
    EXPECT_THAT(ids(), ElementsAre("full", "empty"));
}

TEST_F(LayoutsManagerLoading, ACatalogueWithoutLayoutsIsValid)
{
    load(R"({"layouts":[]})");
    EXPECT_THAT(logLines(), IsEmpty());
    EXPECT_THAT(manager.layouts(), IsEmpty());
}

class LayoutsManagerSeeding : public LayoutsManagerFixture {};

TEST_F(LayoutsManagerSeeding, AFirstLaunchOffersSixLayoutsWithTheirDigits)
{
    manager.seedDefaultLayoutsIfNeeded();
    EXPECT_EQ(settings.stringArray("selectedLayoutIDs"), defaultSelection);
    EXPECT_EQ(settings.stringDictionary("layoutShortcuts"), (Digits{{"one_full_screen", "1"},
                                                                    {"centered", "2"},
                                                                    {"two_side_by_side", "3"},
                                                                    {"two_stacked", "4"},
                                                                    {"three_side_by_side", "5"},
                                                                    {"four_tiled", "6"}}));
    EXPECT_EQ(settings.booleanValue("didSeedDefaultLayouts"), true);
}

TEST_F(LayoutsManagerSeeding, AnExistingSelectionIsKeptAndOnlyTheFlagWritten)
{
    select({"centered"});
    setDigits({{"centered", "9"}});
    desktop.journal.clear();
    manager.seedDefaultLayoutsIfNeeded();
    EXPECT_EQ(desktop.journal.count("UserDefaults.setObject"), 1U);
    EXPECT_EQ(settings.stringArray("selectedLayoutIDs"), (std::vector<std::string>{"centered"}));
    EXPECT_EQ(settings.stringDictionary("layoutShortcuts"), (Digits{{"centered", "9"}}));
    EXPECT_TRUE(settings.boolean("didSeedDefaultLayouts"));
}

TEST_F(LayoutsManagerSeeding, ASelectionOfMixedTypesCountsAsNone)
{
    desktop.userDefaults.setObject("selectedLayoutIDs", {PropertyArray{{std::string("a")}, {std::int64_t{5}}}});
    setDigits({{"x", "7"}});
    manager.seedDefaultLayoutsIfNeeded();
    EXPECT_EQ(settings.stringArray("selectedLayoutIDs"), defaultSelection);
    EXPECT_EQ(settings.stringDictionary("layoutShortcuts").value().contains("x"), false);
}

TEST_F(LayoutsManagerSeeding, AnEmptySelectionIsSeededAtTheFirstLaunch)
{
    select({});
    manager.seedDefaultLayoutsIfNeeded();
    EXPECT_EQ(settings.stringArray("selectedLayoutIDs"), defaultSelection);
}

TEST_F(LayoutsManagerSeeding, NothingIsSeededTwice)
{
    settings.setBoolean("didSeedDefaultLayouts", true);
    select({});
    desktop.journal.clear();
    manager.seedDefaultLayoutsIfNeeded();
    EXPECT_EQ(desktop.journal.count("UserDefaults.setObject"), 0U);
}

} // namespace
} // namespace quorvel
