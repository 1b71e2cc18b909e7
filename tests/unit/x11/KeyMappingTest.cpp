#include "platform/x11/keys/KeyMapping.h"

#include <algorithm>
#include <set>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/x11/keys/KeyTable.h"

namespace quorvel::x11 {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr KeyState shift = XCB_MOD_MASK_SHIFT;
constexpr KeyState capsLock = XCB_MOD_MASK_LOCK;
constexpr KeyState control = XCB_MOD_MASK_CONTROL;
constexpr KeyState alt = XCB_MOD_MASK_1;
constexpr KeyState numLock = XCB_MOD_MASK_2;
constexpr KeyState super = XCB_MOD_MASK_4;
constexpr KeyState level3 = XCB_MOD_MASK_5;

KeyMapping mapping(const char* layout, const char* options = "")
{
    const XkbContext context(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    const xkb_rule_names names{"evdev", "pc105", layout, "", options};
    return KeyMapping(XkbKeymap(xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS)));
}

std::string typed(const KeyMapping& mapping, KeyCode keyCode, KeyState state = 0)
{
    return mapping.characters(mapping.keycodes(keyCode).front(), state);
}

TEST(KeyTable, EveryNameStandsOnce)
{
    std::set<std::string> names;
    for (const auto& position : keyPositions()) {
        EXPECT_TRUE(names.insert(position.xkbName).second) << position.xkbName;
    }
}

TEST(KeyTable, EveryKeyOfAPcKeyboardIsKnown)
{
    const auto map = mapping("us");
    for (const auto& [keyCode, name] : keyPositions()) {
        EXPECT_FALSE(map.keycodes(keyCode).empty()) << name;
    }
}

TEST(KeyMapping, KeysAreFoundByTheirPosition)
{
    const auto map = mapping("us");
    EXPECT_THAT(map.keycodes(0), ElementsAre(38));                  // A
    EXPECT_THAT(map.keycodes(31), ElementsAre(32));                 // O
    EXPECT_THAT(map.keycodes(53), ElementsAre(9));                  // Escape
    EXPECT_THAT(map.keycodes(123), ElementsAre(113));               // Left
    EXPECT_THAT(map.keycodes(10), ElementsAre(94));                 // beside the left Shift, ISO
    EXPECT_THAT(map.keycodes(83), ElementsAre(87));                 // 1 on the keypad
    EXPECT_THAT(map.keycodes(105), UnorderedElementsAre(191, 107)); // F13, Print
}

TEST(KeyMapping, ACodeThatNamesNoKeyHasNone)
{
    const auto map = mapping("us");
    EXPECT_THAT(map.keycodes(200), IsEmpty());
    EXPECT_THAT(map.keycodes(-1), IsEmpty());
}

TEST(KeyMapping, BothDirectionsAgree)
{
    const auto map = mapping("us");
    for (const auto& position : keyPositions()) {
        for (const auto keycode : map.keycodes(position.keyCode)) {
            EXPECT_EQ(map.keyCode(keycode), position.keyCode) << position.xkbName;
        }
    }
    EXPECT_EQ(map.keyCode(123), std::nullopt); // louder
}

TEST(KeyMapping, ThePositionStaysWhenTheLayoutChanges)
{
    EXPECT_EQ(mapping("fr").keycodes(12).front(), mapping("us").keycodes(12).front());
}

TEST(KeyMapping, CharactersFollowTheLayout)
{
    EXPECT_EQ(typed(mapping("us"), 16), "y");
    EXPECT_EQ(typed(mapping("de"), 16), "z");
    EXPECT_EQ(typed(mapping("fr"), 12), "a");
    EXPECT_EQ(typed(mapping("ru"), 11), "и");
    EXPECT_EQ(typed(mapping("us"), 18), "1");
    EXPECT_EQ(typed(mapping("fr"), 18), "&");
    EXPECT_EQ(typed(mapping("fr"), 18, shift), "1");
}

TEST(KeyMapping, TheStateSaysWhichOfSeveralLayoutsIsMeant)
{
    const auto map = mapping("us,ru");
    EXPECT_EQ(typed(map, 11, KeyMapping::layoutState(0)), "b");
    EXPECT_EQ(typed(map, 11, KeyMapping::layoutState(1)), "и");
}

TEST(KeyMapping, ShiftLocksAndLevelsChangeTheCharacter)
{
    const auto map = mapping("de");
    EXPECT_EQ(typed(map, 11, shift), "B");
    EXPECT_EQ(typed(map, 11, capsLock), "B");
    EXPECT_EQ(typed(map, 12, level3), "@");
    EXPECT_EQ(typed(map, 83), "");
    EXPECT_EQ(typed(map, 83, numLock), "1");
}

TEST(KeyMapping, ModifiersThatMakeCommandsDoNotChangeTheCharacter)
{
    const auto map = mapping("us");
    EXPECT_EQ(typed(map, 11, control), "b");
    EXPECT_EQ(typed(map, 11, alt), "b");
    EXPECT_EQ(typed(map, 20, super), "3");
    EXPECT_EQ(typed(map, 11, control | alt | super | shift), "B");
}

TEST(KeyMapping, AKeyThatTypesNothingHasNoCharacters)
{
    EXPECT_EQ(typed(mapping("us"), 122), ""); // F1
    EXPECT_EQ(typed(mapping("us"), 123), ""); // Left
    EXPECT_EQ(typed(mapping("de"), 24), "");  // the dead acute accent
}

TEST(KeyMapping, FlagsHoldOnlyWhatAPersonHolds)
{
    const auto map = mapping("us");
    EXPECT_EQ(map.flags(0), 0U);
    EXPECT_EQ(map.flags(shift | control | alt | super),
              eventFlags::shift | eventFlags::control | eventFlags::option | eventFlags::command);
    EXPECT_EQ(map.flags(shift | capsLock), eventFlags::shift);
    EXPECT_EQ(map.flags(numLock | level3 | XCB_MOD_MASK_3 | XCB_BUTTON_MASK_1 | KeyMapping::layoutState(3)), 0U);
}

TEST(KeyMapping, HotKeyModifiersBecomeBitsOfTheState)
{
    const auto map = mapping("us");
    EXPECT_EQ(map.state(hotKeyModifiers::command | hotKeyModifiers::shift), super | shift);
    EXPECT_EQ(map.state(hotKeyModifiers::option | hotKeyModifiers::control), alt | control);
    EXPECT_EQ(map.state(0), 0);
}

TEST(KeyMapping, ModifiersAreFoundWhereverTheMapHasPutThem)
{
    const auto swapped = mapping("us", "altwin:swap_alt_win");
    EXPECT_EQ(swapped.state(hotKeyModifiers::command), super);
    EXPECT_EQ(swapped.state(hotKeyModifiers::option), alt);
    EXPECT_TRUE(swapped.isModifier(swapped.keycodes(0x37).front()));
}

TEST(KeyMapping, EveryCombinationOfTheLocksIsNamed)
{
    EXPECT_THAT(mapping("us").lockCombinations(), UnorderedElementsAre(0, capsLock, numLock, capsLock | numLock));
}

TEST(KeyMapping, ModifiersLocksAndLayoutSwitchesAreNoKeyDowns)
{
    const auto map = mapping("us,ru", "grp:caps_toggle");
    for (const KeyCode keyCode : {0x38, 0x3C, 0x3B, 0x3E, 0x3A, 0x3D, 0x37, 0x36, 0x39, 0x47}) {
        EXPECT_TRUE(map.isModifier(map.keycodes(keyCode).front())) << keyCode;
    }
    for (const KeyCode keyCode : {0, 48, 49, 53, 122, 123}) {
        EXPECT_FALSE(map.isModifier(map.keycodes(keyCode).front())) << keyCode;
    }
}

} // namespace
} // namespace quorvel::x11
