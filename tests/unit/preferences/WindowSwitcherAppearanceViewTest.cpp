#include "preferences/WindowSwitcherAppearanceView.h"

#include <string>
#include <vector>

#include "tests/unit/preferences/AppearancePaneFixture.h"

namespace quorvel {
namespace {

using Lines = std::vector<std::string>;

class WindowSwitcherAppearanceViewTest : public AppearancePaneFixture<WindowSwitcherAppearanceView> {};

TEST_F(WindowSwitcherAppearanceViewTest, ItsControlsStandInOrder)
{
    EXPECT_EQ(outline(pane.form()), (Lines{
                                        "# Window Border",
                                        "wsBorderColor: Border color, color",
                                        "wsBackgroundColor: Background, color",
                                        "wsBorderWidth: Border width, slider 0-10 step 0.5",
                                        "wsBorderRadius: Corner radius, slider 0-32 step 1",
                                        "# Label",
                                        "wsTextColor: Text color, color",
                                        "wsTextBackgroundColor: Background, color",
                                        "wsTextBorderColor: Border color, color",
                                        "wsTextBorderWidth: Border width, slider 0-10 step 0.5",
                                        "wsTextSize: Size, slider 10-96 step 1",
                                        "wsTextBorderRadius: Corner radius, slider 0-16 step 1",
                                        "wsLabelPosition: Label position, picker of 9",
                                        "wsTextBold: Bold, toggle",
                                        "# Window Info",
                                        "showWindowInfo: Show app name and window title, toggle",
                                        "# Default Display Mode",
                                        "fsDefaultDisplayMode: When activating focus switcher, picker of 2",
                                        "# Preview",
                                        "showPreviewGrid: Show grid, toggle",
                                        "preview: , preview",
                                    }));
}

TEST_F(WindowSwitcherAppearanceViewTest, ItsNoteStandsAtTheTopAndNothingAtTheFoot)
{
    EXPECT_EQ(pane.form().note, "These settings are independent from Layout Appearance.");
    EXPECT_EQ(pane.form().footnote, "");
}

TEST_F(WindowSwitcherAppearanceViewTest, TwoRowsHaveLinesOfHelp)
{
    EXPECT_EQ(rowOf(pane.form(), "showWindowInfo").help,
              "When enabled, displays the application name and window title below the keyboard shortcut label.");
    EXPECT_EQ(rowOf(pane.form(), "fsDefaultDisplayMode").help,
              "Choose what is shown when you first activate the focus switcher. You can toggle between modes using the "
              "configured key.");
    EXPECT_EQ(rowOf(pane.form(), "wsTextBold").help, "");
}

TEST_F(WindowSwitcherAppearanceViewTest, TheDisplayModeIsStoredByItsRawValue)
{
    const auto picker = control<PickerControl>("fsDefaultDisplayMode");
    EXPECT_EQ(picker.choices, (Lines{"Show frames and labels", "Show window list"}));
    EXPECT_EQ(picker.selected, 0U);
    pane.set("fsDefaultDisplayMode", std::int64_t{1});
    EXPECT_EQ(stored("fsDefaultDisplayMode"), PropertyValue{std::string("list")});
    pane.set("fsDefaultDisplayMode", std::int64_t{0});
    EXPECT_EQ(stored("fsDefaultDisplayMode"), PropertyValue{std::string("frames")});
}

TEST_F(WindowSwitcherAppearanceViewTest, HalvesAreRoundedToTheEvenNumber)
{
    for (const auto& [width, text] : {std::pair{0.5, "0"}, {1.5, "2"}, {2.5, "2"}}) {
        pane.set("wsBorderWidth", width);
        EXPECT_EQ(valueText("wsBorderWidth"), text);
    }
}

TEST_F(WindowSwitcherAppearanceViewTest, TheGridIsHiddenEachTimeThePaneAppears)
{
    store("showPreviewGrid", PropertyValue{true});
    EXPECT_FALSE(control<ToggleControl>("showPreviewGrid").isOn);
    pane.set("showPreviewGrid", true);
    EXPECT_TRUE(control<ToggleControl>("showPreviewGrid").isOn);
    pane.paneWillAppear();
    EXPECT_FALSE(control<ToggleControl>("showPreviewGrid").isOn);
    EXPECT_EQ(storedKeys(), (std::set<std::string>{"showPreviewGrid"}));
    EXPECT_EQ(stored("showPreviewGrid"), PropertyValue{true});
}

TEST_F(WindowSwitcherAppearanceViewTest, TheNameIsAskedForWithALineOfExplanation)
{
    press("Save Current Theme");
    EXPECT_EQ(pane.form().alert->message, "Enter a name for this theme.");
}

TEST_F(WindowSwitcherAppearanceViewTest, ThemesAreSavedAmongThoseOfTheSwitcher)
{
    saveTheme("Dusk");
    EXPECT_EQ(savedNames(), (Lines{"Dusk"}));
    EXPECT_EQ(storedKeys(), (std::set<std::string>{"savedSwitcherThemes"}));
}

TEST_F(WindowSwitcherAppearanceViewTest, AnAppliedThemeDecidesAboutTheSharedWindowInfo)
{
    pane.set("showWindowInfo", false);
    saveTheme("Plain");
    pane.set("showWindowInfo", true);
    press("Manage Themes…");
    press("Apply");
    EXPECT_EQ(stored("showWindowInfo"), PropertyValue{false});
    EXPECT_FALSE(control<ToggleControl>("showWindowInfo").isOn);
}

TEST_F(WindowSwitcherAppearanceViewTest, AThemeIsRenamedInAnAlertOverTheSheet)
{
    saveTheme("Dusk");
    press("Manage Themes…");
    press("Rename");
    pane.set(pane.form().alert->field->id, std::string("Dawn"));
    EXPECT_EQ(pane.form().alert->field->text, "Dawn");
    press("Rename");
    EXPECT_EQ(pane.form().sheet->rows.at(0).title, "Dawn");
    EXPECT_FALSE(pane.form().alert);
}

TEST_F(WindowSwitcherAppearanceViewTest, ResettingWritesTheDefaultsOfFourteenSettings)
{
    store("showWindowInfo", PropertyValue{false});
    store("fsDefaultDisplayMode", "list");
    press("Reset to Defaults");
    EXPECT_EQ(pane.form().alert->title, "Reset Window Switcher appearance to defaults?");
    EXPECT_EQ(pane.form().alert->message, "This will discard your current Window Switcher customizations.");
    press("Reset to Defaults");
    EXPECT_EQ(storedKeys().size(), 14U);
    EXPECT_EQ(stored("fsDefaultDisplayMode"), PropertyValue{std::string("frames")});
    EXPECT_EQ(stored("showWindowInfo"), PropertyValue{true});
    EXPECT_EQ(stored("wsTextSize"), PropertyValue{64.0});
}

} // namespace
} // namespace quorvel
