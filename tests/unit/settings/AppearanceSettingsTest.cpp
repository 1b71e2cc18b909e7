#include "settings/AppearanceSettings.h"

#include <gtest/gtest.h>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedMainQueue.h"
#include "platform/simulated/SimulatedSystemColors.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "settings/MoveResizeSettings.h"
#include "settings/Settings.h"
#include "settings/SettingsKeys.h"

namespace quorvel {
namespace {

class AppearanceSettingsTest : public testing::Test {
protected:
    FrameAppearance selection() const { return selectionFrameAppearance(settings, systemColors); }
    FrameAppearance snapTarget() const { return snapTargetFrameAppearance(settings, systemColors); }

    Journal journal;
    SimulatedMainQueue mainQueue{journal};
    SimulatedUserDefaults store{journal, mainQueue};
    Settings settings{store};
    SimulatedSystemColors systemColors;
};

TEST_F(AppearanceSettingsTest, TheLayoutOverlayHasDefaults)
{
    const OverlayAppearance expected{
        .overlayBorderColorHex = "#FFFF00",
        .overlayBackgroundColorHex = "#88FFFF00",
        .overlayBorderWidth = 2.0,
        .overlayBorderRadius = 2.0,
        .textBorderColorHex = "#FFFF00",
        .textBackgroundColorHex = "#88FFFF00",
        .textBorderWidth = 2.0,
        .textColorHex = "#FFFF00",
        .textSize = 28.0,
        .textBorderRadius = 6.0,
        .labelPosition = LabelPosition::center,
        .isTextBold = true,
        .showWindowInfo = true,
    };
    EXPECT_EQ(layoutOverlayAppearance(settings), expected);
}

TEST_F(AppearanceSettingsTest, TheFocusSwitcherHasDefaultsOfItsOwn)
{
    const OverlayAppearance expected{
        .overlayBorderColorHex = "#00D4FF",
        .overlayBackgroundColorHex = "#8800D4FF",
        .overlayBorderWidth = 3.0,
        .overlayBorderRadius = 8.0,
        .textBorderColorHex = "#FFFFFF",
        .textBackgroundColorHex = "#DD000000",
        .textBorderWidth = 2.0,
        .textColorHex = "#FFFFFF",
        .textSize = 64.0,
        .textBorderRadius = 8.0,
        .labelPosition = LabelPosition::topLeft,
        .isTextBold = true,
        .showWindowInfo = true,
    };
    EXPECT_EQ(switcherAppearance(settings), expected);
}

TEST_F(AppearanceSettingsTest, TheLayoutOverlayReadsItsOwnSettings)
{
    settings.setString("overlayBorderColor", "#010000");
    settings.setString("overlayBackgroundColor", "zz");
    settings.setReal("overlayBorderWidth", 1.5);
    settings.setReal("overlayBorderRadius", 2.5);
    settings.setString("textBorderColor", "#030000");
    settings.setString("textBackgroundColor", "#040000");
    settings.setReal("textBorderWidth", 3.5);
    settings.setString("textColor", "#050000");
    settings.setReal("textSize", 0.0);
    settings.setReal("textBorderRadius", 5.5);
    settings.setString("labelPosition", "top");
    settings.setBoolean("isTextBold", false);
    settings.setBoolean("showWindowInfo", false);

    const OverlayAppearance expected{
        .overlayBorderColorHex = "#010000",
        .overlayBackgroundColorHex = "zz",
        .overlayBorderWidth = 1.5,
        .overlayBorderRadius = 2.5,
        .textBorderColorHex = "#030000",
        .textBackgroundColorHex = "#040000",
        .textBorderWidth = 3.5,
        .textColorHex = "#050000",
        .textSize = 0.0,
        .textBorderRadius = 5.5,
        .labelPosition = LabelPosition::top,
        .isTextBold = false,
        .showWindowInfo = false,
    };
    EXPECT_EQ(layoutOverlayAppearance(settings), expected);
}

TEST_F(AppearanceSettingsTest, TheFocusSwitcherReadsItsOwnSettings)
{
    settings.setString("wsBorderColor", "#010000");
    settings.setString("wsBackgroundColor", "#020000");
    settings.setReal("wsBorderWidth", 1.5);
    settings.setReal("wsBorderRadius", 2.5);
    settings.setString("wsTextBorderColor", "#030000");
    settings.setString("wsTextBackgroundColor", "#040000");
    settings.setReal("wsTextBorderWidth", 3.5);
    settings.setString("wsTextColor", "#050000");
    settings.setReal("wsTextSize", 30.0);
    settings.setReal("wsTextBorderRadius", 5.5);
    settings.setString("wsLabelPosition", "bottomRight");
    settings.setBoolean("wsTextBold", false);
    settings.setBoolean("showWindowInfo", false);

    const OverlayAppearance expected{
        .overlayBorderColorHex = "#010000",
        .overlayBackgroundColorHex = "#020000",
        .overlayBorderWidth = 1.5,
        .overlayBorderRadius = 2.5,
        .textBorderColorHex = "#030000",
        .textBackgroundColorHex = "#040000",
        .textBorderWidth = 3.5,
        .textColorHex = "#050000",
        .textSize = 30.0,
        .textBorderRadius = 5.5,
        .labelPosition = LabelPosition::bottomRight,
        .isTextBold = false,
        .showWindowInfo = false,
    };
    EXPECT_EQ(switcherAppearance(settings), expected);
}

TEST_F(AppearanceSettingsTest, ASwitcherTextSizeThatIsNotPositiveIs64)
{
    for (const double size : {0.0, -3.0}) {
        settings.setReal(settingsKeys::wsTextSize, size);
        EXPECT_EQ(switcherTextSize(settings), 64.0);
        EXPECT_EQ(switcherAppearance(settings).textSize, 64.0);
    }
    settings.setReal(settingsKeys::wsTextSize, 0.5);
    EXPECT_EQ(switcherTextSize(settings), 0.5);
}

TEST_F(AppearanceSettingsTest, AnUnknownLabelPositionIsTheDefaultOne)
{
    settings.setString(settingsKeys::labelPosition, "middle");
    settings.setString(settingsKeys::wsLabelPosition, "Center");
    EXPECT_EQ(layoutOverlayAppearance(settings).labelPosition, LabelPosition::center);
    EXPECT_EQ(switcherLabelPosition(settings), LabelPosition::topLeft);
}

TEST_F(AppearanceSettingsTest, OnlyTheExactTextSelectsTheWindowList)
{
    EXPECT_EQ(focusSwitcherDisplayMode(settings), FocusSwitcherDisplayMode::framesAndLabels);
    settings.setString(settingsKeys::fsDefaultDisplayMode, "List");
    EXPECT_EQ(focusSwitcherDisplayMode(settings), FocusSwitcherDisplayMode::framesAndLabels);
    settings.setString(settingsKeys::fsDefaultDisplayMode, "list");
    EXPECT_EQ(focusSwitcherDisplayMode(settings), FocusSwitcherDisplayMode::windowList);
}

TEST_F(AppearanceSettingsTest, FramesHaveDefaults)
{
    EXPECT_EQ(selection(), (FrameAppearance{Color::bytes(10, 132, 255, 204), true, 3.0, 10.0}));
    EXPECT_EQ(snapTarget(), (FrameAppearance{Color::bytes(48, 209, 88, 204), true, 3.0, 10.0}));
}

TEST_F(AppearanceSettingsTest, FramesReadTheirOwnSettingsAndShareTheRadius)
{
    settings.setString(settingsKeys::mrSelectionColorHex, "#FF0000");
    settings.setReal(settingsKeys::mrSelectionBorderWidth, 5.0);
    settings.setBoolean(settingsKeys::mrSelectionGlow, false);
    settings.setString(settingsKeys::mrSnapTargetColorHex, "#00FF0080");
    settings.setReal(settingsKeys::mrSnapTargetBorderWidth, 6.0);
    settings.setInteger(settingsKeys::mrCornerRadius, 1);
    EXPECT_EQ(selection(), (FrameAppearance{Color::bytes(255, 0, 0), false, 5.0, 1.0}));
    EXPECT_EQ(snapTarget(), (FrameAppearance{Color::bytes(0, 255, 0, 128), true, 6.0, 1.0}));
}

TEST_F(AppearanceSettingsTest, AnUnreadableFrameColorIsASystemColor)
{
    settings.setString(settingsKeys::mrSelectionColorHex, "#12");
    settings.setString(settingsKeys::mrSnapTargetColorHex, "bad");
    EXPECT_EQ(selection().color, systemColors.blue().withAlpha(0.9));
    EXPECT_EQ(snapTarget().color, systemColors.green().withAlpha(0.8));
}

TEST_F(AppearanceSettingsTest, AFrameWidthCountsOnlyIfPositive)
{
    for (const double width : {-1.0, 0.0}) {
        settings.setReal(settingsKeys::mrSelectionBorderWidth, width);
        EXPECT_EQ(selection().borderWidth, 3.0);
    }
    settings.setString(settingsKeys::mrSelectionBorderWidth, "wide");
    EXPECT_EQ(selection().borderWidth, 3.0);
}

TEST_F(AppearanceSettingsTest, ACornerRadiusBelowOneIsTen)
{
    for (const int radius : {0, -4}) {
        settings.setInteger(settingsKeys::mrCornerRadius, radius);
        EXPECT_EQ(selection().cornerRadius, 10.0);
    }
    settings.setReal(settingsKeys::mrCornerRadius, 0.9);
    EXPECT_EQ(selection().cornerRadius, 10.0);
    settings.setInteger(settingsKeys::mrCornerRadius, 1);
    EXPECT_EQ(selection().cornerRadius, 1.0);
}

TEST_F(AppearanceSettingsTest, AGlowThatIsNoBooleanIsOn)
{
    settings.setString(settingsKeys::mrSelectionGlow, "x");
    EXPECT_TRUE(selection().glow);
    settings.setInteger(settingsKeys::mrSelectionGlow, 0);
    EXPECT_TRUE(selection().glow);
    settings.setBoolean(settingsKeys::mrSelectionGlow, false);
    EXPECT_FALSE(selection().glow);
}

TEST_F(AppearanceSettingsTest, TheMoveResizeModeHasDefaults)
{
    EXPECT_EQ(moveResizeSettings(settings), (MoveResizeSettings{20.0, true, 20.0, 3}));
}

TEST_F(AppearanceSettingsTest, TheMoveResizeModeTakesPositiveNumbersOnly)
{
    settings.setReal(settingsKeys::mrMoveStep, 5.5);
    settings.setReal(settingsKeys::mrSnapThreshold, 7.0);
    settings.setReal(settingsKeys::mrSnapResistance, 2.9);
    settings.setBoolean(settingsKeys::mrSnapEnabled, false);
    EXPECT_EQ(moveResizeSettings(settings), (MoveResizeSettings{5.5, false, 7.0, 2}));

    settings.setReal(settingsKeys::mrMoveStep, 0.0);
    settings.setReal(settingsKeys::mrSnapThreshold, -1.0);
    settings.setReal(settingsKeys::mrSnapResistance, 0.9);
    settings.setInteger(settingsKeys::mrSnapEnabled, 0);
    EXPECT_EQ(moveResizeSettings(settings), (MoveResizeSettings{20.0, true, 20.0, 3}));
}

} // namespace
} // namespace quorvel
