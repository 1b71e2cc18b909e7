#include "preferences/AppearancePreferencesView.h"

#include <string>
#include <vector>

#include "tests/unit/preferences/AppearancePaneFixture.h"
#include "tests/unit/settings/ThemeFixture.h"

namespace quorvel {
namespace {

using Lines = std::vector<std::string>;

class AppearancePreferencesViewTest : public AppearancePaneFixture<AppearancePreferencesView> {};

TEST_F(AppearancePreferencesViewTest, ItsControlsStandInOrder)
{
    EXPECT_EQ(outline(pane.form()), (Lines{
                                        "# Overlay",
                                        "overlayBorderColor: Border color, color",
                                        "overlayBackgroundColor: Background, color",
                                        "overlayBorderWidth: Border width, slider 0-10 step 0.5",
                                        "overlayBorderRadius: Corner radius, slider 0-32 step 1",
                                        "# Text",
                                        "textColor: Text color, color",
                                        "textBackgroundColor: Background, color",
                                        "textBorderColor: Border color, color",
                                        "textBorderWidth: Border width, slider 0-10 step 0.5",
                                        "textSize: Size, slider 10-64 step 1",
                                        "textBorderRadius: Corner radius, slider 0-16 step 1",
                                        "labelPosition: Label position, picker of 9",
                                        "isTextBold: Bold, toggle",
                                        "# Preview",
                                        "showPreviewGrid: Show grid, toggle",
                                        "preview: , preview",
                                    }));
}

TEST_F(AppearancePreferencesViewTest, ItSaysThatChangesAreSaved)
{
    EXPECT_EQ(pane.form().note, "");
    EXPECT_EQ(pane.form().footnote, "Changes are saved automatically.");
}

TEST_F(AppearancePreferencesViewTest, ThreeButtonsStandAtItsFoot)
{
    EXPECT_EQ(titlesOf(pane.form().buttons), (Lines{"Save Current Theme", "Manage Themes…", "Reset to Defaults"}));
}

TEST_F(AppearancePreferencesViewTest, ControlsOfTheSameTitleHaveNamesOfTheirOwn)
{
    EXPECT_EQ(rowOf(pane.form(), "overlayBorderColor").accessibleName, "Overlay, Border color");
    EXPECT_EQ(rowOf(pane.form(), "textBorderColor").accessibleName, "Text, Border color");
}

TEST_F(AppearancePreferencesViewTest, WithoutSettingsItShowsTheDefaultsAndStoresNothing)
{
    EXPECT_EQ(control<ColorControl>("overlayBorderColor").color, Color::bytes(255, 255, 0));
    EXPECT_EQ(control<ColorControl>("overlayBackgroundColor").color, Color::bytes(136, 255, 255, 0));
    EXPECT_EQ(control<SliderControl>("textSize").value, 28.0);
    EXPECT_EQ(control<PickerControl>("labelPosition").selected, 4U);
    EXPECT_TRUE(control<ToggleControl>("isTextBold").isOn);
    EXPECT_FALSE(control<ToggleControl>("showPreviewGrid").isOn);
    EXPECT_TRUE(storedKeys().empty());
}

TEST_F(AppearancePreferencesViewTest, ThePositionsReadAsAPersonSaysThem)
{
    EXPECT_EQ(
        control<PickerControl>("labelPosition").choices,
        (Lines{"Top Left", "Top", "Top Right", "Left", "Center", "Right", "Bottom Left", "Bottom", "Bottom Right"}));
}

TEST_F(AppearancePreferencesViewTest, EveryChangeIsStoredAtOnce)
{
    pane.set("textColor", Color::bytes(1, 2, 3, 4));
    pane.set("overlayBorderWidth", 2.5);
    pane.set("isTextBold", false);
    pane.set("labelPosition", std::int64_t{3});
    pane.set("showPreviewGrid", true);
    EXPECT_EQ(stored("textColor"), PropertyValue{std::string("#01020304")});
    EXPECT_EQ(stored("overlayBorderWidth"), PropertyValue{2.5});
    EXPECT_EQ(stored("isTextBold"), PropertyValue{false});
    EXPECT_EQ(stored("labelPosition"), PropertyValue{std::string("leading")});
    EXPECT_EQ(stored("showPreviewGrid"), PropertyValue{true});
    EXPECT_EQ(storedKeys().size(), 5U);
    EXPECT_EQ(desktop.journal.count("NotificationCenter.post"), 0U);
}

TEST_F(AppearancePreferencesViewTest, PickingTheShownColorStoresItWithItsAlpha)
{
    store("overlayBorderColor", "#FFFF00");
    pane.set("overlayBorderColor", control<ColorControl>("overlayBorderColor").color);
    EXPECT_EQ(stored("overlayBorderColor"), PropertyValue{std::string("#FFFF00FF")});
}

TEST_F(AppearancePreferencesViewTest, AColorThatIsTakenBackLeavesWhatWasStored)
{
    for (const auto& before : {PropertyValue{std::string("#FFFF00")}, PropertyValue{std::string("yellowish")},
                               PropertyValue{std::int64_t{7}}}) {
        store("textColor", before);
        const auto earlier = control<ColorControl>("textColor").stored;
        pane.set("textColor", Color::bytes(1, 2, 3));
        pane.set("textColor", earlier);
        EXPECT_EQ(stored("textColor"), before);
    }
    const auto absent = control<ColorControl>("overlayBorderColor").stored;
    pane.set("overlayBorderColor", Color::bytes(1, 2, 3));
    EXPECT_EQ(stored("overlayBorderColor"), PropertyValue{std::string("#010203FF")});
    pane.set("overlayBorderColor", absent);
    EXPECT_EQ(storedKeys(), (std::set<std::string>{"textColor"}));
}

TEST_F(AppearancePreferencesViewTest, AColorIsWrittenOutWithItsAlphaLast)
{
    store("overlayBackgroundColor", "#0A84FFCC");
    EXPECT_EQ(control<ColorControl>("overlayBackgroundColor").text, "#0A84FFCC");
    EXPECT_EQ(control<ColorControl>("textColor").text, "#FFFF00FF");
}

TEST_F(AppearancePreferencesViewTest, AnUnreadableColorShowsAsTheDefaultAndStays)
{
    store("textColor", "yellowish");
    EXPECT_EQ(control<ColorControl>("textColor").color, Color::bytes(255, 255, 0));
    EXPECT_EQ(stored("textColor"), PropertyValue{std::string("yellowish")});
}

TEST_F(AppearancePreferencesViewTest, HalvesAreRoundedToTheEvenNumber)
{
    for (const auto& [width, text] : {std::pair{0.5, "0"}, {1.5, "2"}, {2.5, "2"}, {3.0, "3"}}) {
        pane.set("overlayBorderWidth", width);
        EXPECT_EQ(valueText("overlayBorderWidth"), text);
        EXPECT_EQ(control<SliderControl>("overlayBorderWidth").value, width);
    }
}

TEST_F(AppearancePreferencesViewTest, AValueBetweenStepsGoesToTheNearest)
{
    pane.set("overlayBorderWidth", 2.7);
    pane.set("textSize", 99.0);
    EXPECT_EQ(stored("overlayBorderWidth"), PropertyValue{2.5});
    EXPECT_EQ(stored("textSize"), PropertyValue{64.0});
}

TEST_F(AppearancePreferencesViewTest, AValueOutsideTheRangeIsReadAsItIs)
{
    store("textSize", PropertyValue{120.0});
    EXPECT_EQ(control<SliderControl>("textSize").value, 64.0);
    EXPECT_EQ(valueText("textSize"), "120");
}

TEST_F(AppearancePreferencesViewTest, AnUnknownPositionSelectsNoChoice)
{
    store("labelPosition", "middle");
    EXPECT_EQ(control<PickerControl>("labelPosition").selected, std::nullopt);
}

TEST_F(AppearancePreferencesViewTest, EveryChangeIsAnnounced)
{
    int changes = 0;
    const auto observation = pane.observe([&] { ++changes; });
    pane.set("isTextBold", false);
    EXPECT_EQ(changes, 1);
    pane.press(pane.form().buttons.at(0).id);
    EXPECT_EQ(changes, 2);
}

TEST_F(AppearancePreferencesViewTest, AChangeByAnotherProgramIsAnnounced)
{
    int changes = 0;
    const auto observation = pane.observe([&] { ++changes; });
    desktop.userDefaults.changeFromOutside("isTextBold", {false});
    desktop.drain();
    EXPECT_EQ(changes, 1);
    EXPECT_FALSE(control<ToggleControl>("isTextBold").isOn);
}

TEST_F(AppearancePreferencesViewTest, ThemesThatAnotherProgramStoredAreKeptByTheNextSave)
{
    desktop.userDefaults.changeFromOutside("savedThemes", storedData(nightTheme));
    desktop.drain();
    EXPECT_EQ(savedNames(), (Lines{"Night"}));
    saveTheme("A");
    EXPECT_EQ(savedNames(), (Lines{"Night", "A"}));
}

TEST_F(AppearancePreferencesViewTest, TheNameIsAskedForInAnAlert)
{
    press("Save Current Theme");
    const auto alert = pane.form().alert;
    ASSERT_TRUE(alert);
    EXPECT_EQ(alert->message, "");
    ASSERT_TRUE(alert->field);
    EXPECT_EQ(alert->field->placeholder, "Theme name");
    EXPECT_EQ(alert->field->text, "");
    EXPECT_EQ(titlesOf(alert->buttons), (Lines{"Save", "Cancel"}));
    EXPECT_EQ(alert->buttons.at(1).role, ButtonRole::cancel);
}

TEST_F(AppearancePreferencesViewTest, ANameCanBeUsedTwice)
{
    saveTheme("A");
    saveTheme("A");
    EXPECT_EQ(savedNames(), (Lines{"A", "A"}));
    EXPECT_EQ(storedKeys(), (std::set<std::string>{"savedThemes"}));
}

TEST_F(AppearancePreferencesViewTest, AThemeWithoutNameIsUntitledAndABlankOneKeepsItsBlanks)
{
    saveTheme("");
    saveTheme("  ");
    EXPECT_EQ(savedNames(), (Lines{"Untitled", "  "}));
}

TEST_F(AppearancePreferencesViewTest, ACancelledNameSavesNothing)
{
    press("Save Current Theme");
    pane.set(pane.form().alert->field->id, std::string("A"));
    press("Cancel");
    EXPECT_FALSE(pane.form().alert);
    EXPECT_TRUE(storedKeys().empty());

    press("Save Current Theme");
    EXPECT_EQ(pane.form().alert->field->text, "");
}

TEST_F(AppearancePreferencesViewTest, ASavedThemeSaysOnWhichDayItWasSaved)
{
    desktop.dates.today.secondsSince2001 += 30 * 86'400.0;
    saveTheme("Night");
    desktop.dates.today.secondsSince2001 += 86'400.0;
    press("Manage Themes…");
    EXPECT_EQ(pane.form().sheet.value().rows.at(0).subtitle, "Created Jan 31, 2025");
}

TEST_F(AppearancePreferencesViewTest, ASavedThemeComesBackWhenItIsApplied)
{
    store("textSize", PropertyValue{40.0});
    saveTheme("Large");
    pane.set("textSize", 12.0);
    int changes = 0;
    const auto observation = pane.observe([&] { ++changes; });
    press("Manage Themes…");
    press("Apply");
    EXPECT_EQ(stored("textSize"), PropertyValue{40.0});
    EXPECT_EQ(control<SliderControl>("textSize").value, 40.0);
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(storedKeys().size(), 13U); // the twelve of the theme and the themes
    EXPECT_EQ(desktop.journal.count("NotificationCenter.post"), 0U);
}

TEST_F(AppearancePreferencesViewTest, TheSheetClosesAndAsksBeforeItDeletes)
{
    saveTheme("Night");
    press("Manage Themes…");
    EXPECT_EQ(pane.form().sheet->title, "Themes");
    press("Delete");
    ASSERT_TRUE(pane.form().alert);
    EXPECT_EQ(pane.form().alert->message,
              "Are you sure you want to delete the theme “Night”? This action cannot be undone.");
    press("Delete");
    EXPECT_TRUE(pane.form().sheet->rows.empty());
    press("Close");
    EXPECT_FALSE(pane.form().sheet);
}

TEST_F(AppearancePreferencesViewTest, ResettingAsksFirst)
{
    press("Reset to Defaults");
    const auto alert = pane.form().alert;
    ASSERT_TRUE(alert);
    EXPECT_EQ(alert->title, "Reset Layout appearance to defaults?");
    EXPECT_EQ(alert->message, "This will discard your current Layout overlay customizations.");
    EXPECT_FALSE(alert->field);
    EXPECT_EQ(titlesOf(alert->buttons), (Lines{"Reset to Defaults", "Cancel"}));
    press("Cancel");
    EXPECT_FALSE(pane.form().alert);
    EXPECT_TRUE(storedKeys().empty());
}

TEST_F(AppearancePreferencesViewTest, ResettingWritesTheDefaultsOfTwelveSettings)
{
    store("overlayBackgroundColor", "#123456");
    store("showPreviewGrid", PropertyValue{true});
    press("Reset to Defaults");
    press("Reset to Defaults");
    EXPECT_EQ(stored("overlayBackgroundColor"), PropertyValue{std::string("#88FFFF00")});
    EXPECT_EQ(stored("textSize"), PropertyValue{28.0});
    EXPECT_EQ(stored("isTextBold"), PropertyValue{true});
    EXPECT_EQ(stored("showPreviewGrid"), PropertyValue{true});
    EXPECT_EQ(storedKeys().size(), 13U);
}

TEST_F(AppearancePreferencesViewTest, ControlsThatAreNotThereAreAFatalError)
{
    EXPECT_EQ(fatalErrorOf([&] { pane.set("nonsense", true); }), "There is no control \"nonsense\"");
    EXPECT_EQ(fatalErrorOf([&] { pane.press("save.confirm"); }), "There is no control \"save.confirm\"");
    EXPECT_EQ(fatalErrorOf([&] { pane.set("textSize", true); }),
              "The control \"textSize\" sent a value of a wrong type");
    EXPECT_EQ(fatalErrorOf([&] { pane.set("labelPosition", std::int64_t{9}); }),
              "The picker \"labelPosition\" has no choice 9");
}

} // namespace
} // namespace quorvel
