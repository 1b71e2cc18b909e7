#include "preferences/ThemesListView.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "settings/ThemeSettings.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class Record>
class ThemesListTest : public testing::Test {
protected:
    void save(const std::string& name)
    {
        Settings settings(desktop.userDefaults);
        store.add(captureTheme<Record>(settings, name, desktop.dates.now()));
    }

    std::string idOf(std::size_t row, const std::string& title) const
    {
        return idOf(view.sheet().rows.at(row).buttons, title);
    }

    std::string alertButton(const std::string& title) const { return idOf(view.alert().value().buttons, title); }

    static std::string idOf(const std::vector<PaneButton>& buttons, const std::string& title)
    {
        const auto found = std::ranges::find(buttons, title, &PaneButton::title);
        return found == buttons.end() ? "no such button" : found->id;
    }

    // The names that the store has now and has saved.
    std::vector<std::string> names()
    {
        std::vector<std::string> result;
        const BasicThemeStore<Record> saved(Settings(desktop.userDefaults), desktop.log);
        for (const auto& theme : saved.themes()) {
            result.push_back(theme.name);
        }
        EXPECT_EQ(result.size(), store.themes().size());
        return result;
    }

    SimulatedDesktop desktop;
    BasicThemeStore<Record> store{Settings(desktop.userDefaults), desktop.log};
    std::vector<std::string> applied;
    int closings = 0;
    BasicThemesListView<Record> view{
        store,
        desktop.dates,
        {.apply = [this](const Record& theme) { applied.push_back(theme.name); }, .close = [this] { ++closings; }}};
};

using ThemesListViewTest = ThemesListTest<Theme>;
using SwitcherThemesListViewTest = ThemesListTest<SwitcherTheme>;
using MoveResizeThemesListViewTest = ThemesListTest<MoveResizeTheme>;

std::vector<std::string> titles(const std::vector<PaneButton>& buttons)
{
    std::vector<std::string> result;
    result.reserve(buttons.size());
    for (const auto& button : buttons) {
        result.push_back(button.title);
    }
    return result;
}

TEST_F(SwitcherThemesListViewTest, TheFooterCountsTheThemes)
{
    EXPECT_EQ(view.sheet().footer, "0 themes");
    save("A");
    EXPECT_EQ(view.sheet().footer, "1 theme");
    save("B");
    EXPECT_EQ(view.sheet().footer, "2 themes");
}

TEST_F(SwitcherThemesListViewTest, AnEmptyListSaysHowToFillIt)
{
    const auto sheet = view.sheet();
    EXPECT_EQ(sheet.title, "Window Switcher Themes");
    EXPECT_THAT(sheet.rows, IsEmpty());
    EXPECT_EQ(
        sheet.placeholder,
        (ListSheetPlaceholder{"paintbrush.pointed", "No Themes Saved",
                              "Save your current Window Switcher appearance settings as a theme to reuse later."}));
}

TEST_F(MoveResizeThemesListViewTest, EachKindHasItsOwnTexts)
{
    const auto sheet = view.sheet();
    EXPECT_EQ(sheet.title, "Move/Resize Themes");
    EXPECT_EQ(sheet.placeholder,
              (ListSheetPlaceholder{"slider.horizontal.3", "No Themes Saved",
                                    "Save your current Move/Resize appearance settings as a theme to reuse later."}));
}

TEST_F(MoveResizeThemesListViewTest, ARowTellsNameAndDayAndOffersThreeButtons)
{
    save("Night");
    desktop.dates.today = {0.0};
    save("Day");
    const auto rows = view.sheet().rows;
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].title, "Night");
    EXPECT_EQ(rows[0].subtitle, "Created Jan 1, 2025");
    EXPECT_EQ(rows[1].title, "Day");
    EXPECT_EQ(rows[1].subtitle, "Created Jan 1, 2001");
    EXPECT_THAT(titles(rows[0].buttons), ElementsAre("Apply", "Rename", "Delete"));
    EXPECT_EQ(rows[0].buttons[1].symbol, "");
    EXPECT_EQ(rows[0].buttons[2].symbol, "trash");
    EXPECT_EQ(rows[0].buttons[2].accessibleName, "Delete “Night”");
}

TEST_F(ThemesListViewTest, AnOverlayThemeCanBeAppliedAndDeleted)
{
    save("Night");
    const auto sheet = view.sheet();
    EXPECT_EQ(sheet.title, "Themes");
    EXPECT_THAT(titles(sheet.rows.at(0).buttons), ElementsAre("Apply", "Delete"));
    EXPECT_EQ(sheet.rows.at(0).buttons[1].symbol, "");
}

TEST_F(ThemesListViewTest, ApplyingHandsTheThemeToThePane)
{
    save("A");
    save("B");
    EXPECT_TRUE(view.press(idOf(1, "Apply")));
    EXPECT_THAT(applied, ElementsAre("B"));
    EXPECT_THAT(names(), ElementsAre("A", "B"));
}

TEST_F(ThemesListViewTest, DeletingAnOverlayThemeAsksFirst)
{
    save("Night");
    EXPECT_TRUE(view.press(idOf(0, "Delete")));
    const auto alert = view.alert();
    ASSERT_TRUE(alert);
    EXPECT_EQ(alert->title, "Delete Theme");
    EXPECT_EQ(alert->message, "Are you sure you want to delete the theme “Night”? This action cannot be undone.");
    EXPECT_THAT(titles(alert->buttons), ElementsAre("Delete", "Cancel"));
    EXPECT_THAT(names(), ElementsAre("Night"));

    EXPECT_TRUE(view.press(alertButton("Delete")));
    EXPECT_FALSE(view.alert());
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(ThemesListViewTest, CancellingADeletionKeepsTheTheme)
{
    save("Night");
    view.press(idOf(0, "Delete"));
    EXPECT_TRUE(view.press(alertButton("Cancel")));
    EXPECT_FALSE(view.alert());
    EXPECT_THAT(names(), ElementsAre("Night"));
}

TEST_F(ThemesListViewTest, AnOverlayThemeCannotBeRenamed)
{
    save("Night");
    EXPECT_FALSE(view.press(view.sheet().rows.at(0).id + ".rename"));
    EXPECT_FALSE(view.alert());
}

TEST_F(SwitcherThemesListViewTest, TheTrashDeletesAtOnce)
{
    save("A");
    save("B");
    EXPECT_TRUE(view.press(idOf(0, "Delete")));
    EXPECT_FALSE(view.alert());
    EXPECT_THAT(names(), ElementsAre("B"));
}

TEST_F(SwitcherThemesListViewTest, RenamingAsksForTheNewName)
{
    save("A");
    save("B");
    EXPECT_TRUE(view.press(idOf(1, "Rename")));
    const auto alert = view.alert();
    ASSERT_TRUE(alert);
    EXPECT_EQ(alert->title, "Rename Theme");
    EXPECT_EQ(alert->message, "Enter a new name for this theme.");
    EXPECT_EQ(alert->field.value().placeholder, "Theme name");
    EXPECT_EQ(alert->field->text, "B");
    EXPECT_THAT(titles(alert->buttons), ElementsAre("Cancel", "Rename"));

    EXPECT_TRUE(view.set(alert->field->id, std::string("C")));
    EXPECT_EQ(view.alert()->field->text, "C");
    EXPECT_THAT(names(), ElementsAre("A", "B"));
    EXPECT_TRUE(view.press(alertButton("Rename")));
    EXPECT_FALSE(view.alert());
    EXPECT_THAT(names(), ElementsAre("A", "C"));
}

TEST_F(SwitcherThemesListViewTest, CancellingARenamingKeepsTheName)
{
    save("A");
    view.press(idOf(0, "Rename"));
    view.set(view.alert()->field->id, std::string("C"));
    EXPECT_TRUE(view.press(alertButton("Cancel")));
    EXPECT_FALSE(view.alert());
    EXPECT_THAT(names(), ElementsAre("A"));
}

TEST_F(SwitcherThemesListViewTest, AQuestionGoesWithItsTheme)
{
    save("A");
    ASSERT_TRUE(view.press(idOf(0, "Rename")));
    store.add(store.themes().at(0));
    EXPECT_TRUE(view.alert()) << "its theme is still there";
    desktop.userDefaults.removeObject("savedSwitcherThemes");
    store.follow();
    EXPECT_FALSE(view.alert());
}

TEST_F(SwitcherThemesListViewTest, ClosingIsLeftToThePane)
{
    const auto close = view.sheet().close;
    EXPECT_EQ(close.title, "Close");
    EXPECT_EQ(close.role, ButtonRole::cancel);
    EXPECT_TRUE(view.press(close.id));
    EXPECT_EQ(closings, 1);
}

TEST_F(SwitcherThemesListViewTest, ThemesThatShareAnIdHaveRowsOfTheirOwn)
{
    save("A");
    store.add(SwitcherTheme(store.themes()[0]));
    auto other = store.themes()[0];
    other.name = "B";
    store.add(other);
    const auto rows = view.sheet().rows;
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_NE(rows[0].id, rows[1].id);
    EXPECT_NE(rows[1].id, rows[2].id);
    EXPECT_TRUE(view.press(idOf(2, "Apply")));
    EXPECT_THAT(applied, ElementsAre("B"));
}

TEST_F(SwitcherThemesListViewTest, ControlsOfOthersAreNotItsOwn)
{
    save("A");
    EXPECT_FALSE(view.press("themes.confirm"));
    EXPECT_FALSE(view.press("reset"));
    EXPECT_FALSE(view.set("themes.name", std::string("C")));
    view.press(idOf(0, "Rename"));
    EXPECT_FALSE(view.set("themes.name", true));
    EXPECT_FALSE(view.set("wsTextSize", std::string("C")));
}

TEST_F(SwitcherThemesListViewTest, EveryChangeIsAnnounced)
{
    int changes = 0;
    const auto token = view.observe([&] { ++changes; });
    save("A");
    EXPECT_EQ(changes, 1);
    view.press(idOf(0, "Rename"));
    EXPECT_EQ(changes, 2);
    view.set(view.alert()->field->id, std::string("C"));
    EXPECT_EQ(changes, 3);
    view.press(alertButton("Cancel"));
    EXPECT_EQ(changes, 4);
    view.press(idOf(0, "Delete"));
    EXPECT_EQ(changes, 5);
}

} // namespace
} // namespace quorvel
