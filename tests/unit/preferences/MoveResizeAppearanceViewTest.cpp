#include "preferences/MoveResizeAppearanceView.h"

#include <string>
#include <vector>

#include "tests/unit/preferences/AppearancePaneFixture.h"

namespace quorvel {
namespace {

using Lines = std::vector<std::string>;

class MoveResizeAppearanceViewTest : public AppearancePaneFixture<MoveResizeAppearanceView> {};

TEST_F(MoveResizeAppearanceViewTest, ItsControlsStandInOrder)
{
    EXPECT_EQ(outline(pane.form()), (Lines{
                                        "# Selection Frame",
                                        "mrSelectionColorHex: Border color, color",
                                        "mrSelectionBorderWidth: Border width, slider 1-10 step 0.5",
                                        "mrSelectionGlow: Glow effect, toggle",
                                        "# Snap Target Frame",
                                        "mrSnapTargetColorHex: Border color, color",
                                        "mrSnapTargetBorderWidth: Border width, slider 1-10 step 0.5",
                                        "mrSnapTargetGlow: Glow effect, toggle",
                                        "# Corner Radius",
                                        "mrCornerRadius: Radius (px), stepper 1-50",
                                        "# Behavior",
                                        "mrMoveStep: Move step (px), slider 5-50 step 5",
                                        "mrSnapEnabled: Snap to neighbor windows, toggle",
                                        "mrSnapThreshold: Snap distance (px), slider 5-50 step 5",
                                        "mrSnapResistance: Snap resistance, slider 1-10 step 1",
                                        "# Preview",
                                        "preview: , preview",
                                    }));
}

TEST_F(MoveResizeAppearanceViewTest, ItSaysThatChangesAreSaved)
{
    EXPECT_EQ(pane.form().note, "");
    EXPECT_EQ(pane.form().footnote, "Changes are saved automatically.");
}

TEST_F(MoveResizeAppearanceViewTest, WidthsShowOneDecimalAndDistancesNone)
{
    pane.set("mrSelectionBorderWidth", 1.5);
    pane.set("mrSnapTargetBorderWidth", 2.5);
    EXPECT_EQ(valueText("mrSelectionBorderWidth"), "1.5");
    EXPECT_EQ(valueText("mrSnapTargetBorderWidth"), "2.5");
    EXPECT_EQ(valueText("mrMoveStep"), "20");
    EXPECT_EQ(valueText("mrSnapThreshold"), "20");
    EXPECT_EQ(valueText("mrSnapResistance"), "3");
}

TEST_F(MoveResizeAppearanceViewTest, WidthsStopAtOne)
{
    pane.set("mrSelectionBorderWidth", 0.0);
    EXPECT_EQ(stored("mrSelectionBorderWidth"), PropertyValue{1.0});
}

TEST_F(MoveResizeAppearanceViewTest, TheRadiusIsAnInteger)
{
    EXPECT_EQ(control<StepperControl>("mrCornerRadius").valueText, "10");
    pane.set("mrCornerRadius", std::int64_t{11});
    EXPECT_EQ(stored("mrCornerRadius"), PropertyValue{std::int64_t{11}});
    pane.set("mrCornerRadius", std::int64_t{51});
    EXPECT_EQ(stored("mrCornerRadius"), PropertyValue{std::int64_t{50}});
    pane.set("mrCornerRadius", std::int64_t{0});
    EXPECT_EQ(stored("mrCornerRadius"), PropertyValue{std::int64_t{1}});
}

TEST_F(MoveResizeAppearanceViewTest, AStoredRadiusOfNoneIsReadAsItIs)
{
    store("mrCornerRadius", PropertyValue{std::int64_t{0}});
    EXPECT_EQ(control<StepperControl>("mrCornerRadius").value, 1);
    EXPECT_EQ(control<StepperControl>("mrCornerRadius").valueText, "0");
}

TEST_F(MoveResizeAppearanceViewTest, TheResistanceIsStoredAsARealNumber)
{
    pane.set("mrSnapResistance", 5.0);
    EXPECT_EQ(stored("mrSnapResistance"), PropertyValue{5.0});
}

TEST_F(MoveResizeAppearanceViewTest, ThemesAreSavedAmongThoseOfMoveResize)
{
    saveTheme("Calm");
    EXPECT_EQ(savedNames(), (Lines{"Calm"}));
    EXPECT_EQ(storedKeys(), (std::set<std::string>{"savedMoveResizeThemes"}));
}

TEST_F(MoveResizeAppearanceViewTest, ResettingWritesTheDefaultsOfElevenSettings)
{
    store("mrResizeModifierFlags", PropertyValue{std::int64_t{524288}});
    store("mrMoveStep", PropertyValue{5.0});
    press("Reset to Defaults");
    EXPECT_EQ(pane.form().alert->title, "Reset Move/Resize appearance to defaults?");
    EXPECT_EQ(pane.form().alert->message, "This will discard your current Move/Resize customizations.");
    press("Reset to Defaults");
    EXPECT_EQ(storedKeys().size(), 12U);
    EXPECT_EQ(stored("mrMoveStep"), PropertyValue{20.0});
    EXPECT_EQ(stored("mrCornerRadius"), PropertyValue{std::int64_t{10}});
    EXPECT_EQ(stored("mrResizeModifierFlags"), PropertyValue{std::int64_t{524288}});
}

} // namespace
} // namespace quorvel
