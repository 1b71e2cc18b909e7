#include "settings/SettingsCheck.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "settings/SettingsTable.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

CheckedSettings check(std::vector<SettingsEntry> entries)
{
    return checkSettings(entries);
}

PropertyValue text(std::string value)
{
    return {std::move(value)};
}

PropertyValue integer(std::int64_t value)
{
    return {value};
}

PropertyValue exampleOf(SettingType type)
{
    switch (type) {
    case SettingType::integer:
        return integer(1);
    case SettingType::real:
        return {1.5};
    case SettingType::boolean:
        return {true};
    case SettingType::string:
        return text("a");
    case SettingType::data:
        return {PropertyData{std::byte{1}}};
    case SettingType::stringArray:
        return {PropertyArray{text("a")}};
    case SettingType::stringDictionary:
        return {PropertyDictionary{{"a", text("1")}}};
    }
    return {};
}

TEST(SettingsCheck, TakesEverySettingOfItsTypeAsItIs)
{
    std::vector<SettingsEntry> entries;
    PropertyDictionary expected;
    for (const auto& setting : settingsTable()) {
        entries.emplace_back(setting.key, exampleOf(setting.type));
        expected.emplace(setting.key, exampleOf(setting.type));
    }
    const auto checked = checkSettings(entries);
    EXPECT_EQ(checked.accepted, expected);
    EXPECT_THAT(checked.refusals, IsEmpty());
}

TEST(SettingsCheck, RefusesEverySettingOfEveryOtherType)
{
    constexpr SettingType types[] = {SettingType::integer, SettingType::boolean,     SettingType::string,
                                     SettingType::data,    SettingType::stringArray, SettingType::stringDictionary};
    for (const auto& setting : settingsTable()) {
        const auto expected = setting.type == SettingType::real ? SettingType::integer : setting.type;
        for (const SettingType type : types) {
            const auto checked = check({{std::string(setting.key), exampleOf(type)}});
            EXPECT_EQ(checked.accepted.size(), type == expected ? 1U : 0U) << setting.key;
            EXPECT_EQ(checked.refusals.size(), type == expected ? 0U : 1U) << setting.key;
        }
    }
}

TEST(SettingsCheck, TellsWhatItRefusesInOneLineEach)
{
    const auto checked = check({
        {"NSWindow Frame", text("0 0 100 100")},
        {"activateOverlayModifiers", text("256")},
        {"isTextBold", integer(1)},
        {"selectedLayoutIDs", PropertyValue{PropertyArray{text("a"), integer(5)}}},
        {"textColor", std::nullopt},
        {"textSize", PropertyValue{20.0}},
    });
    EXPECT_THAT(
        checked.refusals,
        ElementsAre(
            "Setting \"NSWindow Frame\" is refused: there is no such setting.",
            "Setting \"activateOverlayModifiers\" is refused: it holds a string where an integer is expected.",
            "Setting \"isTextBold\" is refused: it holds an integer where a Boolean is expected.",
            "Setting \"selectedLayoutIDs\" is refused: it holds an array where an array of strings is expected.",
            "Setting \"textColor\" is refused: it holds what no setting can hold."));
    EXPECT_EQ(checked.accepted, (PropertyDictionary{{"textSize", {20.0}}}));
}

TEST(SettingsCheck, GivesNumbersTheTypeOfTheTable)
{
    const auto checked = check({{"mrCornerRadius", PropertyValue{12.0}}, {"textSize", integer(30)}});
    EXPECT_EQ(checked.accepted, (PropertyDictionary{{"mrCornerRadius", integer(12)}, {"textSize", {30.0}}}));
    EXPECT_THAT(check({{"mrCornerRadius", PropertyValue{12.5}}}).refusals,
                ElementsAre("Setting \"mrCornerRadius\" is refused: 12.5 is not a whole number."));
}

TEST(SettingsCheck, RefusesNumbersWithWhichTheProgramWouldNotStart)
{
    EXPECT_THAT(check({{"moveResizeKeyCode", integer(-1)}}).refusals,
                ElementsAre("Setting \"moveResizeKeyCode\" is refused: -1 is out of range."));
    EXPECT_THAT(check({{"focusSwitcherKeyCode", integer(4'294'967'296)}}).refusals,
                ElementsAre("Setting \"focusSwitcherKeyCode\" is refused: 4294967296 is out of range."));
    EXPECT_THAT(check({{"focusSwitcherKeyCode", integer(4'294'967'295)}}).refusals, IsEmpty());
    EXPECT_THAT(check({{"mrResizeModifierFlags", PropertyValue{std::numeric_limits<double>::infinity()}}}).refusals,
                ElementsAre("Setting \"mrResizeModifierFlags\" is refused: inf is out of range."));
    EXPECT_THAT(check({{"textSize", PropertyValue{std::numeric_limits<double>::quiet_NaN()}}}).refusals,
                ElementsAre("Setting \"textSize\" is refused: nan is not a finite number."));
}

} // namespace
} // namespace quorvel
