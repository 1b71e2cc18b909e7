#include "base/KeyboardLayoutProfile.h"

#include <set>
#include <string>

#include <gtest/gtest.h>

namespace quorvel {
namespace {

// What the keys type, in the order of their codes.
std::string typedInOrder(KeyboardLayoutProfile profile)
{
    std::string text;
    for (const auto& [keyCode, character] : keyNamesFor(profile)) {
        text += character;
    }
    return text;
}

TEST(KeyboardLayoutProfile, IsStoredUnderItsName)
{
    EXPECT_EQ(rawValue(KeyboardLayoutProfile::qwerty), "QWERTY");
    EXPECT_EQ(rawValue(KeyboardLayoutProfile::colemak), "Colemak");
    EXPECT_EQ(rawValue(KeyboardLayoutProfile::colemakDH), "Colemak-DH");
    EXPECT_EQ(rawValue(KeyboardLayoutProfile::dvorak), "Dvorak");
    for (const auto profile : allKeyboardLayoutProfiles) {
        EXPECT_EQ(keyboardLayoutProfileFromRawValue(rawValue(profile)), profile);
    }
}

TEST(KeyboardLayoutProfile, AnyOtherTextGivesNone)
{
    for (const auto* text : {"colemak", "qwerty", "Colemak-dh", "Workman", ""}) {
        EXPECT_EQ(keyboardLayoutProfileFromRawValue(text), std::nullopt) << text;
    }
}

TEST(KeyboardLayoutProfile, TheTablesAreTheProgramsOwn)
{
    EXPECT_EQ(typedInOrder(KeyboardLayoutProfile::qwerty), "ASDFHGZXCVBQWERYT123465=97-80]OU[IPLJ'K;\\,/NM.`");
    EXPECT_EQ(typedInOrder(KeyboardLayoutProfile::colemak), "ARSTHDZXCVBQWFPJG123465=97-80]YL[U;IN'EO\\,/KM.`");
    EXPECT_EQ(typedInOrder(KeyboardLayoutProfile::colemakDH), "ARSTMDZXCBKQWFPJG123465=97-80]YL[U;IN'EO\\,/VH.`");
    EXPECT_EQ(typedInOrder(KeyboardLayoutProfile::dvorak), "AOEUDI;QJKX',.PFY123465=97[80\\RG]CLNH-TS/WVBMZ`");
}

TEST(KeyboardLayoutProfile, EveryTableMapsTheSame47KeysOneToOne)
{
    std::set<KeyCode> expected;
    for (KeyCode keyCode = 0; keyCode <= 47; ++keyCode) {
        expected.insert(keyCode);
    }
    expected.erase(10);
    expected.erase(36);
    expected.insert(50);
    for (const auto profile : allKeyboardLayoutProfiles) {
        const auto& table = characterTableFor(profile);
        EXPECT_EQ(table.size(), 47U);
        std::set<KeyCode> keyCodes;
        for (const auto& [character, keyCode] : table) {
            keyCodes.insert(keyCode);
        }
        EXPECT_EQ(keyCodes, expected) << rawValue(profile);
    }
}

TEST(KeyboardLayoutProfile, DvorakDiffersFromItsEngravingOnPurpose)
{
    const auto names = keyNamesFor(KeyboardLayoutProfile::dvorak);
    EXPECT_EQ(names.at(24), "=");
    EXPECT_EQ(names.at(27), "[");
    EXPECT_EQ(names.at(30), "\\");
    EXPECT_EQ(names.at(33), "]");
    EXPECT_EQ(names.at(42), "/");
    EXPECT_EQ(names.at(43), "W");
    EXPECT_EQ(names.at(44), "V");
    EXPECT_EQ(names.at(47), "Z");
    EXPECT_EQ(names.at(6), ";");
    EXPECT_EQ(names.at(12), "'");
    EXPECT_EQ(names.at(39), "-");
}

TEST(KeyboardLayoutProfile, FindsTheKeyOfALetterOnEachKeyboard)
{
    EXPECT_EQ(characterTableFor(KeyboardLayoutProfile::qwerty).at("O"), 31);
    EXPECT_EQ(characterTableFor(KeyboardLayoutProfile::colemak).at("O"), 41);
    EXPECT_EQ(characterTableFor(KeyboardLayoutProfile::colemakDH).at("O"), 41);
    EXPECT_EQ(characterTableFor(KeyboardLayoutProfile::dvorak).at("O"), 1);
    EXPECT_EQ(characterTableFor(KeyboardLayoutProfile::qwerty).at("R"), 15);
    EXPECT_EQ(characterTableFor(KeyboardLayoutProfile::colemak).at("R"), 1);
    EXPECT_EQ(characterTableFor(KeyboardLayoutProfile::colemakDH).at("R"), 1);
    EXPECT_EQ(characterTableFor(KeyboardLayoutProfile::dvorak).at("R"), 31);
}

TEST(KeyboardLayoutProfile, Key50IsTheBackquoteEverywhere)
{
    for (const auto profile : allKeyboardLayoutProfiles) {
        EXPECT_EQ(keyNamesFor(profile).at(50), "`");
    }
}

TEST(KeyboardLayoutProfile, ATableIsBuiltOnce)
{
    for (const auto profile : allKeyboardLayoutProfiles) {
        EXPECT_EQ(&characterTableFor(profile), &characterTableFor(profile));
    }
}

TEST(KeyboardLayoutProfile, KeyNamesAreTheInverseOfTheTable)
{
    for (const auto profile : allKeyboardLayoutProfiles) {
        const auto& table = characterTableFor(profile);
        const auto names = keyNamesFor(profile);
        EXPECT_EQ(names.size(), table.size());
        for (const auto& [character, keyCode] : table) {
            EXPECT_EQ(names.at(keyCode), character);
        }
    }
}

} // namespace
} // namespace quorvel
