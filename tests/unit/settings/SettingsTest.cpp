#include "settings/Settings.h"

#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedMainQueue.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "settings/SettingsKeys.h"
#include "settings/SettingsTable.h"
#include "tests/support/FatalErrors.h"

namespace quorvel {
namespace {

class SettingsTest : public testing::Test {
protected:
    Journal journal;
    SimulatedMainQueue mainQueue{journal};
    SimulatedUserDefaults store{journal, mainQueue};
    Settings settings{store};
};

TEST_F(SettingsTest, AbsentKeysReadAsNothing)
{
    EXPECT_FALSE(settings.isStored("key"));
    EXPECT_EQ(settings.integer("key"), 0);
    EXPECT_EQ(settings.real("key"), 0.0);
    EXPECT_FALSE(settings.boolean("key"));
    EXPECT_EQ(settings.string("key"), std::nullopt);
    EXPECT_EQ(settings.data("key"), std::nullopt);
    EXPECT_EQ(settings.stringArray("key"), std::nullopt);
    EXPECT_EQ(settings.stringDictionary("key"), std::nullopt);
    EXPECT_EQ(settings.integerNumber("key"), std::nullopt);
    EXPECT_EQ(settings.realNumber("key"), std::nullopt);
    EXPECT_EQ(settings.booleanValue("key"), std::nullopt);
    EXPECT_EQ(settings.stringValue("key"), std::nullopt);
}

TEST_F(SettingsTest, AStoredZeroIsNotAbsent)
{
    settings.setInteger("key", 0);
    EXPECT_TRUE(settings.isStored("key"));
    EXPECT_EQ(settings.integerNumber("key"), 0);
}

TEST_F(SettingsTest, WhatIsWrittenKeepsItsType)
{
    settings.setInteger("integer", 31);
    settings.setReal("real", 2.0);
    settings.setBoolean("boolean", true);
    settings.setString("string", "31");
    settings.setData("data", {std::byte{7}});
    settings.setStringArray("array", {"a", "b"});
    settings.setStringDictionary("dictionary", {{"a", "1"}});

    const std::map<std::string, PropertyValue, std::less<>> expected{
        {"integer", {std::int64_t{31}}},
        {"real", {2.0}},
        {"boolean", {true}},
        {"string", {std::string("31")}},
        {"data", {PropertyData{std::byte{7}}}},
        {"array", {PropertyArray{{std::string("a")}, {std::string("b")}}}},
        {"dictionary", {PropertyDictionary{{"a", {std::string("1")}}}}},
    };
    EXPECT_EQ(store.contents(), expected);
}

TEST_F(SettingsTest, WhatIsWrittenIsReadBack)
{
    settings.setReal("real", 2.5);
    settings.setData("data", {std::byte{7}});
    settings.setStringArray("array", {"a", "b"});
    settings.setStringDictionary("dictionary", {{"a", "1"}});
    EXPECT_EQ(settings.real("real"), 2.5);
    EXPECT_EQ(settings.data("data"), PropertyData{std::byte{7}});
    EXPECT_EQ(settings.stringArray("array"), (std::vector<std::string>{"a", "b"}));
    EXPECT_EQ(settings.stringDictionary("dictionary"), (std::map<std::string, std::string>{{"a", "1"}}));
}

TEST_F(SettingsTest, ARemovedKeyIsAbsent)
{
    settings.setInteger("key", 5);
    settings.remove("key");
    EXPECT_FALSE(settings.isStored("key"));
}

TEST_F(SettingsTest, PlainReadersConvertAndStrictOnesDoNot)
{
    settings.setString("number", "256");
    EXPECT_EQ(settings.integer("number"), 256);
    EXPECT_EQ(settings.real("number"), 256.0);
    EXPECT_TRUE(settings.boolean("number"));
    EXPECT_EQ(settings.integerNumber("number"), std::nullopt);
    EXPECT_EQ(settings.realNumber("number"), std::nullopt);
    EXPECT_EQ(settings.booleanValue("number"), std::nullopt);

    settings.setInteger("one", 1);
    EXPECT_EQ(settings.string("one"), "1");
    EXPECT_EQ(settings.stringValue("one"), std::nullopt);
    EXPECT_EQ(settings.booleanValue("one"), std::nullopt);
    EXPECT_EQ(settings.data("one"), std::nullopt);
}

TEST_F(SettingsTest, BoundReadersShowThePaneDefaultAndStoreNothing)
{
    EXPECT_EQ(settings.boundInteger(settingsKeys::mrCornerRadius), 10);
    EXPECT_EQ(settings.boundReal(settingsKeys::textSize), 28.0);
    EXPECT_FALSE(settings.boundBoolean(settingsKeys::showPreviewGrid));
    EXPECT_EQ(settings.boundString(settingsKeys::fsPopupPosition), "center");
    EXPECT_TRUE(store.contents().empty());
}

TEST_F(SettingsTest, BoundReadersTakeNumbersOfAnyKindAndNoOtherType)
{
    settings.setInteger(settingsKeys::textSize, 30);
    settings.setReal(settingsKeys::mrCornerRadius, 12.7);
    EXPECT_EQ(settings.boundReal(settingsKeys::textSize), 30.0);
    EXPECT_EQ(settings.boundInteger(settingsKeys::mrCornerRadius), 12);

    settings.setString(settingsKeys::textSize, "30");
    settings.setString(settingsKeys::mrCornerRadius, "12");
    settings.setInteger(settingsKeys::showPreviewGrid, 1);
    settings.setInteger(settingsKeys::textColor, 112233);
    EXPECT_EQ(settings.boundReal(settingsKeys::textSize), 28.0);
    EXPECT_EQ(settings.boundInteger(settingsKeys::mrCornerRadius), 10);
    EXPECT_FALSE(settings.boundBoolean(settingsKeys::showPreviewGrid));
    EXPECT_EQ(settings.boundString(settingsKeys::textColor), "#FFFF00");
}

TEST_F(SettingsTest, PreferencesShowEveryShortcutAsUnset)
{
    for (const auto& setting : settingsTable()) {
        if (setting.key.ends_with("KeyCode") || setting.key.ends_with("Modifiers")) {
            EXPECT_EQ(settings.boundInteger(setting.key), 0) << setting.key;
        }
    }
    EXPECT_EQ(settings.boundInteger(settingsKeys::mrResizeModifierFlags), 131072);
    EXPECT_TRUE(store.contents().empty());
}

TEST_F(SettingsTest, PreferencesShowTheDefaultsOfTheMoveResizeMode)
{
    EXPECT_EQ(settings.boundString(settingsKeys::mrSelectionColorHex), "#0A84FFCC");
    EXPECT_EQ(settings.boundReal(settingsKeys::mrSelectionBorderWidth), 3.0);
    EXPECT_TRUE(settings.boundBoolean(settingsKeys::mrSelectionGlow));
    EXPECT_EQ(settings.boundString(settingsKeys::mrSnapTargetColorHex), "#30D158CC");
    EXPECT_EQ(settings.boundReal(settingsKeys::mrSnapTargetBorderWidth), 3.0);
    EXPECT_TRUE(settings.boundBoolean(settingsKeys::mrSnapTargetGlow));
    EXPECT_EQ(settings.boundInteger(settingsKeys::mrCornerRadius), 10);
    EXPECT_TRUE(settings.boundBoolean(settingsKeys::mrSnapEnabled));
    EXPECT_EQ(settings.boundReal(settingsKeys::mrSnapThreshold), 20.0);
    EXPECT_EQ(settings.boundReal(settingsKeys::mrSnapResistance), 3.0);
    EXPECT_EQ(settings.boundReal(settingsKeys::mrMoveStep), 20.0);
}

TEST_F(SettingsTest, PreferencesShowTheDefaultsOfTheRemainingSettings)
{
    EXPECT_EQ(settings.boundString(settingsKeys::keyboardLayoutProfile), "QWERTY");
    EXPECT_EQ(settings.boundString(settingsKeys::fsDefaultDisplayMode), "frames");
    EXPECT_EQ(settings.boundReal(settingsKeys::wsTextSize), 64.0);
    EXPECT_FALSE(settings.boundBoolean(settingsKeys::startAtLoginEnabled));
    EXPECT_FALSE(settings.boundBoolean(settingsKeys::didSeedDefaultLayouts));
}

TEST_F(SettingsTest, AKeyOutsideTheTableHasNoDefault)
{
    EXPECT_EQ(fatalErrorOf([this] { static_cast<void>(settings.boundInteger("tpyo")); }), "No such setting: tpyo");
}

TEST(SettingsTable, Holds81SettingsByType)
{
    std::map<SettingType, int> counts;
    std::map<std::string_view, int> names;
    for (const auto& setting : settingsTable()) {
        ++counts[setting.type];
        ++names[setting.key];
    }
    EXPECT_EQ(names.size(), 81U);
    EXPECT_EQ(settingsTable().size(), 81U);
    EXPECT_EQ(counts[SettingType::integer], 34);
    EXPECT_EQ(counts[SettingType::string], 17);
    EXPECT_EQ(counts[SettingType::real], 15);
    EXPECT_EQ(counts[SettingType::boolean], 10);
    EXPECT_EQ(counts[SettingType::data], 3);
    EXPECT_EQ(counts[SettingType::stringArray], 1);
    EXPECT_EQ(counts[SettingType::stringDictionary], 1);
}

TEST(SettingsTable, PaneDefaultsHaveTheTypeOfTheirSetting)
{
    for (const auto& [key, type, paneDefault, readerFallback, resetValue] : settingsTable()) {
        if (key == settingsKeys::fsFocusExactWindow) { // no pane shows it
            EXPECT_TRUE(std::holds_alternative<std::monostate>(paneDefault));
            continue;
        }
        switch (type) {
        case SettingType::integer:
            EXPECT_TRUE(std::holds_alternative<std::int64_t>(paneDefault)) << key;
            break;
        case SettingType::real:
            EXPECT_TRUE(std::holds_alternative<double>(paneDefault)) << key;
            break;
        case SettingType::boolean:
            EXPECT_TRUE(std::holds_alternative<bool>(paneDefault)) << key;
            break;
        case SettingType::string:
            EXPECT_TRUE(std::holds_alternative<std::string_view>(paneDefault)) << key;
            break;
        case SettingType::data:
        case SettingType::stringArray:
        case SettingType::stringDictionary:
            EXPECT_TRUE(std::holds_alternative<std::monostate>(paneDefault)) << key;
            break;
        }
    }
}

} // namespace
} // namespace quorvel
