#include "settings/ThemeSettings.h"

#include <map>
#include <string>

#include <gtest/gtest.h>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedMainQueue.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "settings/AppearanceSettings.h"
#include "settings/Settings.h"
#include "settings/ThemeCoding.h"
#include "settings/ThemeKind.h"
#include "tests/unit/settings/ThemeFixture.h"

namespace quorvel {
namespace {

using Contents = std::map<std::string, PropertyValue, std::less<>>;

PropertyValue text(const char* value)
{
    return {std::string(value)};
}

PropertyValue integer(std::int64_t value)
{
    return {value};
}

template <class Record>
Record only(std::string_view json)
{
    return decodeThemes<Record>(json).value().front();
}

class ThemeSettingsTest : public testing::Test {
protected:
    Journal journal;
    SimulatedMainQueue mainQueue{journal};
    SimulatedUserDefaults store{journal, mainQueue};
    Settings settings{store};
};

TEST_F(ThemeSettingsTest, ASavedThemeCarriesTheSettingsUnchanged)
{
    settings.setString(settingsKeys::overlayBorderColor, "#010203");
    const auto theme = captureTheme<Theme>(settings, "A", Date{1234.5});
    EXPECT_EQ(theme.name, "A");
    EXPECT_EQ(theme.overlayBorderColorHex, "#010203");
    EXPECT_EQ(theme.overlayBackgroundColorHex, "#88FFFF00");
    EXPECT_EQ(theme.textSize, 28.0);
    EXPECT_TRUE(theme.isTextBold);
    EXPECT_EQ(theme.labelPositionRaw, "center");
    EXPECT_EQ(theme.createdAt, Date{1234.5});
    EXPECT_EQ(theme.updatedAt, Date{1234.5});
    EXPECT_EQ(theme.notes, std::nullopt);
    EXPECT_NE(theme.id, captureTheme<Theme>(settings, "A", Date{1234.5}).id);
}

TEST_F(ThemeSettingsTest, AThemeWithoutANameIsUntitledAndABlankNameStays)
{
    EXPECT_EQ(captureTheme<SwitcherTheme>(settings, "", Date{}).name, "Untitled");
    EXPECT_EQ(captureTheme<SwitcherTheme>(settings, "  ", Date{}).name, "  ");
}

TEST_F(ThemeSettingsTest, ApplyingAnOverlayThemeWritesTwelveSettings)
{
    settings.setBoolean(settingsKeys::showPreviewGrid, true);
    applyTheme(only<Theme>(nightTheme), settings);
    const Contents expected{
        {"overlayBorderColor", text("#112233")},
        {"overlayBackgroundColor", text("#11223344")},
        {"overlayBorderWidth", {2.5}},
        {"overlayBorderRadius", {4.0}},
        {"textBorderColor", text("#FFFFFF")},
        {"textBackgroundColor", text("#00000080")},
        {"textBorderWidth", {1.0}},
        {"textColor", text("#FF0000")},
        {"textSize", {30.0}},
        {"textBorderRadius", {6.0}},
        {"isTextBold", {false}},
        {"labelPosition", text("topLeft")},
        {"showPreviewGrid", {true}},
    };
    EXPECT_EQ(store.contents(), expected);
}

TEST_F(ThemeSettingsTest, ApplyingASwitcherThemeWritesFourteenSettings)
{
    applyTheme(only<SwitcherTheme>(duskTheme), settings);
    const Contents expected{
        {"wsBorderColor", text("#112233")},
        {"wsBackgroundColor", text("#11223344")},
        {"wsBorderWidth", {2.5}},
        {"wsBorderRadius", {4.0}},
        {"wsTextBorderColor", text("#FFFFFF")},
        {"wsTextBackgroundColor", text("#00000080")},
        {"wsTextBorderWidth", {1.0}},
        {"wsTextColor", text("#FF0000")},
        {"wsTextSize", {30.0}},
        {"wsTextBorderRadius", {6.0}},
        {"wsTextBold", {false}},
        {"wsLabelPosition", text("topLeft")},
        {"showWindowInfo", {false}},
        {"fsDefaultDisplayMode", text("list")},
    };
    EXPECT_EQ(store.contents(), expected);
}

TEST_F(ThemeSettingsTest, TheLayoutOverlaySharesTheWindowInformationOfASwitcherTheme)
{
    EXPECT_TRUE(layoutOverlayAppearance(settings).showWindowInfo);
    applyTheme(only<SwitcherTheme>(duskTheme), settings);
    EXPECT_FALSE(layoutOverlayAppearance(settings).showWindowInfo);
}

TEST_F(ThemeSettingsTest, ApplyingAMoveResizeThemeWritesElevenSettings)
{
    settings.setInteger(settingsKeys::mrResizeModifierFlags, 524288);
    applyTheme(only<MoveResizeTheme>(calmTheme), settings);
    const Contents expected{
        {"mrSelectionColorHex", text("#112233")},
        {"mrSelectionBorderWidth", {2.5}},
        {"mrSelectionGlow", {false}},
        {"mrSnapTargetColorHex", text("#445566")},
        {"mrSnapTargetBorderWidth", {4.0}},
        {"mrSnapTargetGlow", {true}},
        {"mrCornerRadius", integer(10)},
        {"mrSnapEnabled", {false}},
        {"mrSnapThreshold", {15.0}},
        {"mrSnapResistance", {2.0}},
        {"mrMoveStep", {35.0}},
        {"mrResizeModifierFlags", integer(524288)},
    };
    EXPECT_EQ(store.contents(), expected);
}

TEST_F(ThemeSettingsTest, AnUnknownPositionOrModeLeavesTheSettingAlone)
{
    settings.setString(settingsKeys::wsLabelPosition, "bottom");
    settings.setString(settingsKeys::fsDefaultDisplayMode, "list");
    auto theme = only<SwitcherTheme>(duskTheme);
    theme.labelPositionRaw = "middle";
    theme.defaultDisplayModeRaw = "List";
    applyTheme(theme, settings);
    EXPECT_EQ(settings.string(settingsKeys::wsLabelPosition), "bottom");
    EXPECT_EQ(settings.string(settingsKeys::fsDefaultDisplayMode), "list");
    EXPECT_EQ(settings.string(settingsKeys::wsBorderColor), "#112233");
}

TEST_F(ThemeSettingsTest, AppliedSettingsAreThoseThatWereSaved)
{
    settings.setReal(settingsKeys::mrMoveStep, 45.0);
    settings.setInteger(settingsKeys::mrCornerRadius, 17);
    const auto theme = captureTheme<MoveResizeTheme>(settings, "A", Date{});
    resetThemedSettings<MoveResizeTheme>(settings);
    EXPECT_EQ(settings.real(settingsKeys::mrMoveStep), 20.0);
    applyTheme(theme, settings);
    EXPECT_EQ(settings.real(settingsKeys::mrMoveStep), 45.0);
    EXPECT_EQ(settings.integer(settingsKeys::mrCornerRadius), 17);
}

TEST_F(ThemeSettingsTest, ResettingWritesTheDefaultsOfOneKind)
{
    settings.setBoolean(settingsKeys::showPreviewGrid, true);
    resetThemedSettings<Theme>(settings);
    EXPECT_EQ(store.contents().size(), 12U + 1U);
    EXPECT_EQ(settings.string(settingsKeys::overlayBackgroundColor), "#88FFFF00");
    EXPECT_EQ(settings.string(settingsKeys::labelPosition), "center");
    EXPECT_TRUE(settings.boolean(settingsKeys::showPreviewGrid));

    resetThemedSettings<SwitcherTheme>(settings);
    EXPECT_EQ(store.contents().size(), 12U + 1U + 14U);
    EXPECT_EQ(settings.string(settingsKeys::fsDefaultDisplayMode), "frames");
    EXPECT_TRUE(settings.boolean(settingsKeys::showWindowInfo));

    settings.setInteger(settingsKeys::mrResizeModifierFlags, 524288);
    resetThemedSettings<MoveResizeTheme>(settings);
    EXPECT_EQ(store.contents().size(), 12U + 1U + 14U + 11U + 1U);
    EXPECT_EQ(store.object("mrCornerRadius"), integer(10));
    EXPECT_EQ(store.object("mrSnapResistance"), PropertyValue{3.0});
    EXPECT_EQ(settings.integer(settingsKeys::mrResizeModifierFlags), 524288);
}

} // namespace
} // namespace quorvel
