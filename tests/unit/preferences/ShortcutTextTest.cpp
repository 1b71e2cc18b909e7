#include "preferences/ShortcutText.h"

#include <gtest/gtest.h>

namespace quorvel {
namespace {

using enum KeyboardLayoutProfile;

constexpr ModifierNames linuxNames{"Super", "Shift", "Alt", "Ctrl"};

TEST(ShortcutText, TheProfileNamesTheKey)
{
    EXPECT_EQ(shortcutText({31, 768}, qwerty), "⌘⇧O");
    EXPECT_EQ(shortcutText({31, 768}, colemak), "⌘⇧Y");
    EXPECT_EQ(shortcutText({31, 768}, dvorak), "⌘⇧R");
    EXPECT_EQ(shortcutText({47, 0}, dvorak), "Z");
    EXPECT_EQ(shortcutText({47, 0}, qwerty), ".");
    EXPECT_EQ(shortcutText({46, 0}, colemakDH), "H");
}

TEST(ShortcutText, ModifiersStandInAnOrderOfTheirOwn)
{
    EXPECT_EQ(shortcutText({49, 6912}, qwerty), "⌘⇧⌥⌃Space");
    EXPECT_EQ(shortcutText({36, 4096}, qwerty), "⌃Return");
    EXPECT_EQ(shortcutText({15, 2304}, qwerty), "⌘⌥R");
}

TEST(ShortcutText, KeysWithoutACharacterHaveNames)
{
    EXPECT_EQ(shortcutText({125, 0}, qwerty), "↓");
    EXPECT_EQ(shortcutText({126, 0}, qwerty), "↑");
    EXPECT_EQ(shortcutText({123, 0}, qwerty), "←");
    EXPECT_EQ(shortcutText({124, 0}, qwerty), "→");
    EXPECT_EQ(shortcutText({48, 512}, qwerty), "⇧Tab");
    EXPECT_EQ(shortcutText({53, 0}, qwerty), "Escape");
    EXPECT_EQ(shortcutText({50, 256}, qwerty), "⌘`");
    EXPECT_EQ(shortcutText({51, 0}, qwerty), "Delete");
    EXPECT_EQ(shortcutText({55, 256}, qwerty), "⌘⌘");
    EXPECT_EQ(shortcutText({56, 0}, qwerty), "Shift");
    EXPECT_EQ(shortcutText({57, 0}, qwerty), "Caps Lock");
    EXPECT_EQ(shortcutText({58, 0}, qwerty), "Option");
    EXPECT_EQ(shortcutText({59, 0}, qwerty), "Control");
    EXPECT_EQ(shortcutText({60, 0}, qwerty), "Right Shift");
    EXPECT_EQ(shortcutText({61, 0}, qwerty), "Right Option");
    EXPECT_EQ(shortcutText({62, 0}, qwerty), "Right Control");
    EXPECT_EQ(shortcutText({63, 0}, qwerty), "Function");
}

TEST(ShortcutText, OtherKeysGoByTheirNumber)
{
    EXPECT_EQ(shortcutText({110, 0}, qwerty), "Key 110");
    EXPECT_EQ(shortcutText({10, 256}, qwerty), "⌘Key 10");
    EXPECT_EQ(shortcutText({76, 0}, qwerty), "Key 76");
    EXPECT_EQ(shortcutText({-1, 0}, qwerty), "Key -1");
}

TEST(ShortcutText, WithoutAKeyThereIsNoShortcut)
{
    EXPECT_EQ(shortcutText({0, 0}, qwerty), "None");
    EXPECT_EQ(shortcutText({0, 768}, qwerty), "None");
}

TEST(ShortcutText, SymbolsCanBeSpelledOut)
{
    EXPECT_EQ(spelledOutShortcut({31, 768}, qwerty, linuxNames), "Super+Shift+O");
    EXPECT_EQ(spelledOutShortcut({49, 6912}, qwerty, linuxNames), "Super+Shift+Alt+Ctrl+Space");
    EXPECT_EQ(spelledOutShortcut({55, 256}, qwerty, linuxNames), "Super+Super");
    EXPECT_EQ(spelledOutShortcut({55, 0}, qwerty, linuxNames), "Super");
}

TEST(ShortcutText, WithoutASymbolThereIsNothingToSpellOut)
{
    EXPECT_EQ(spelledOutShortcut({53, 0}, qwerty, linuxNames), "");
    EXPECT_EQ(spelledOutShortcut({0, 768}, qwerty, linuxNames), "");
}

} // namespace
} // namespace quorvel
