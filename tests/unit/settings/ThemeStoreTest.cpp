#include "settings/ThemeStore.h"

#include <limits>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedLog.h"
#include "platform/simulated/SimulatedMainQueue.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "settings/ThemeCoding.h"
#include "settings/ThemeSettings.h"
#include "tests/unit/settings/ThemeFixture.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

class ThemeStoreTest : public testing::Test {
protected:
    template <class Record>
    Record themeNamed(std::string name)
    {
        return captureTheme<Record>(settings, std::move(name), Date{1000.0});
    }

    template <class Store>
    static std::vector<std::string> names(const Store& themeStore)
    {
        std::vector<std::string> result;
        for (const auto& theme : themeStore.themes()) {
            result.push_back(theme.name);
        }
        return result;
    }

    // The names that a program that starts now would find.
    std::vector<std::string> storedNames()
    {
        const ThemeStore other(settings, log);
        return names(other);
    }

    Journal journal;
    SimulatedMainQueue mainQueue{journal};
    SimulatedUserDefaults store{journal, mainQueue};
    SimulatedLog log{journal};
    Settings settings{store};
};

TEST_F(ThemeStoreTest, EachKindIsStoredUnderAKeyOfItsOwn)
{
    ThemeStore(settings, log).add(themeNamed<Theme>("A"));
    SwitcherThemeStore(settings, log).add(themeNamed<SwitcherTheme>("B"));
    MoveResizeThemeStore(settings, log).add(themeNamed<MoveResizeTheme>("C"));
    EXPECT_EQ(store.contents().size(), 3U);
    EXPECT_THAT(names(ThemeStore(settings, log)), ElementsAre("A"));
    EXPECT_THAT(names(SwitcherThemeStore(settings, log)), ElementsAre("B"));
    EXPECT_THAT(names(MoveResizeThemeStore(settings, log)), ElementsAre("C"));
    EXPECT_TRUE(settings.data("savedThemes"));
    EXPECT_TRUE(settings.data("savedSwitcherThemes"));
    EXPECT_TRUE(settings.data("savedMoveResizeThemes"));
}

TEST_F(ThemeStoreTest, ThereAreNoThemesWhileNothingIsStored)
{
    EXPECT_THAT(ThemeStore(settings, log).themes(), IsEmpty());
    EXPECT_THAT(log.lines(), IsEmpty());
    EXPECT_THAT(store.contents(), IsEmpty());
}

TEST_F(ThemeStoreTest, TextInPlaceOfDataCountsAsNothing)
{
    settings.setString(settingsKeys::savedThemes, std::string(nightTheme));
    EXPECT_THAT(ThemeStore(settings, log).themes(), IsEmpty());
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(ThemeStoreTest, ABadDocumentIsLoggedAndLeftInPlace)
{
    const auto bad = edited(nightTheme, R"(,"updatedAt":757382400)", "");
    store.setObject("savedThemes", storedData(bad));
    store.setObject("savedSwitcherThemes", storedData("[{}]"));
    store.setObject("savedMoveResizeThemes", storedData(edited(calmTheme, ":10", ":10.5")));
    EXPECT_THAT(ThemeStore(settings, log).themes(), IsEmpty());
    EXPECT_THAT(SwitcherThemeStore(settings, log).themes(), IsEmpty());
    EXPECT_THAT(MoveResizeThemeStore(settings, log).themes(), IsEmpty());
    EXPECT_THAT(log.lines(), ElementsAre("Failed to decode themes: [0].updatedAt is missing",
                                         "Failed to decode switcher themes: [0].id is missing",
                                         "Failed to decode move/resize themes: [0].cornerRadius is not an integer"));
    EXPECT_EQ(store.object("savedThemes"), storedData(bad));
}

TEST_F(ThemeStoreTest, TheNextSaveReplacesABadDocument)
{
    store.setObject("savedThemes", storedData("nonsense"));
    ThemeStore themes(settings, log);
    themes.add(themeNamed<Theme>("A"));
    EXPECT_THAT(storedNames(), ElementsAre("A"));
}

TEST_F(ThemeStoreTest, ThemesThatCannotBeWrittenLeaveWhatIsStored)
{
    store.setObject("savedThemes", storedData(nightTheme));
    store.setObject("savedSwitcherThemes", storedData(duskTheme));
    store.setObject("savedMoveResizeThemes", storedData(calmTheme));
    const auto before = store.contents();
    auto theme = themeNamed<Theme>("A");
    theme.textSize = std::numeric_limits<double>::infinity();
    ThemeStore(settings, log).add(theme);
    auto switcherTheme = themeNamed<SwitcherTheme>("B");
    switcherTheme.textSize = std::numeric_limits<double>::infinity();
    SwitcherThemeStore(settings, log).add(switcherTheme);
    auto moveResizeTheme = themeNamed<MoveResizeTheme>("C");
    moveResizeTheme.moveStep = -std::numeric_limits<double>::infinity();
    MoveResizeThemeStore(settings, log).add(moveResizeTheme);
    EXPECT_THAT(log.lines(),
                ElementsAre(StartsWith("Failed to encode themes: "), StartsWith("Failed to encode switcher themes: "),
                            StartsWith("Failed to encode move/resize themes: ")));
    EXPECT_EQ(store.contents(), before);
}

TEST_F(ThemeStoreTest, ThemesKeepTheOrderInWhichTheyWereMade)
{
    ThemeStore themes(settings, log);
    for (const auto* name : {"C", "A", "B"}) {
        themes.add(themeNamed<Theme>(name));
    }
    EXPECT_THAT(names(themes), ElementsAre("C", "A", "B"));
    EXPECT_THAT(storedNames(), ElementsAre("C", "A", "B"));
}

TEST_F(ThemeStoreTest, ThemesOfTheSameNameAreToldApart)
{
    ThemeStore themes(settings, log);
    themes.add(themeNamed<Theme>("A"));
    themes.add(themeNamed<Theme>("A"));
    themes.rename(Theme(themes.themes()[1]), "B");
    EXPECT_THAT(storedNames(), ElementsAre("A", "B"));
}

TEST_F(ThemeStoreTest, RenamingChangesNothingButTheName)
{
    store.setObject("savedThemes", storedData(edited(nightTheme, "}]", R"(,"notes":"x"}])")));
    ThemeStore themes(settings, log);
    themes.add(themeNamed<Theme>("Later"));
    auto expected = themes.themes();
    expected[0].name = "Noon";
    themes.rename(themes.themes()[0], "Noon");
    EXPECT_EQ(themes.themes(), expected);
    EXPECT_EQ(ThemeStore(settings, log).themes(), expected);
}

TEST_F(ThemeStoreTest, RenamingAnUnknownThemeSavesNothing)
{
    store.setObject("savedThemes", storedData("nonsense"));
    ThemeStore themes(settings, log);
    themes.rename(themeNamed<Theme>("A"), "B");
    EXPECT_EQ(store.object("savedThemes"), storedData("nonsense"));
}

TEST_F(ThemeStoreTest, DeletingTakesTheFirstOfTheOverlaysThemesWithThatId)
{
    ThemeStore themes(settings, log);
    auto theme = themeNamed<Theme>("A");
    themes.add(theme);
    theme.name = "B";
    themes.add(theme);
    themes.add(themeNamed<Theme>("C"));
    themes.remove(theme);
    EXPECT_THAT(storedNames(), ElementsAre("B", "C"));
}

TEST_F(ThemeStoreTest, DeletingTakesEveryThemeOfTheOtherKindsWithThatId)
{
    SwitcherThemeStore themes(settings, log);
    auto theme = themeNamed<SwitcherTheme>("A");
    themes.add(theme);
    theme.name = "B";
    themes.add(theme);
    themes.add(themeNamed<SwitcherTheme>("C"));
    themes.remove(themes.themes()[0]);
    EXPECT_THAT(names(SwitcherThemeStore(settings, log)), ElementsAre("C"));

    MoveResizeThemeStore others(settings, log);
    const auto other = themeNamed<MoveResizeTheme>("A");
    others.add(other);
    others.add(other);
    others.remove(other);
    EXPECT_THAT(names(MoveResizeThemeStore(settings, log)), IsEmpty());
}

TEST_F(ThemeStoreTest, WhatAnotherProgramStoredIsFollowed)
{
    ThemeStore themes(settings, log);
    themes.add(themeNamed<Theme>("A"));
    int changes = 0;
    const auto observation = themes.observeThemes([&] { ++changes; });
    themes.follow();
    EXPECT_EQ(changes, 0) << "its own save is no news";
    store.setObject("savedThemes", storedData(nightTheme));
    themes.follow();
    EXPECT_THAT(names(themes), ElementsAre("Night"));
    themes.follow();
    EXPECT_EQ(changes, 1);
    store.removeObject("savedThemes");
    themes.follow();
    EXPECT_THAT(names(themes), IsEmpty());
}

TEST_F(ThemeStoreTest, ABadDocumentOfAnotherProgramIsLoggedOnce)
{
    ThemeStore themes(settings, log);
    store.setObject("savedThemes", storedData("[{}]"));
    themes.follow();
    themes.follow();
    EXPECT_THAT(log.lines(), ElementsAre(StartsWith("Failed to decode themes: ")));
}

TEST_F(ThemeStoreTest, ObserversSeeTheThemesAsTheyAreNow)
{
    ThemeStore themes(settings, log);
    std::vector<std::size_t> counts;
    auto token = themes.observeThemes([&] { counts.push_back(themes.themes().size()); });
    themes.add(themeNamed<Theme>("A"));
    themes.rename(themes.themes()[0], "B");
    themes.remove(themes.themes()[0]);
    token.reset();
    themes.add(themeNamed<Theme>("C"));
    EXPECT_THAT(counts, ElementsAre(1U, 1U, 0U));
}

} // namespace
} // namespace quorvel
