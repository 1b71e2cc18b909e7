#include "settings/ShortcutSettings.h"

#include <cstdint>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedMainQueue.h"
#include "platform/simulated/SimulatedUserDefaults.h"
#include "settings/Settings.h"
#include "tests/support/FatalErrors.h"

namespace quorvel {
namespace {

class ShortcutSettingsTest : public testing::Test {
protected:
    Journal journal;
    SimulatedMainQueue mainQueue{journal};
    SimulatedUserDefaults store{journal, mainQueue};
    Settings settings{store};
};

TEST_F(ShortcutSettingsTest, MainShortcutsHaveFallbacks)
{
    EXPECT_EQ(mainShortcut(settings, shortcutKeys::activateOverlay), (Shortcut{31, 768}));
    EXPECT_EQ(mainShortcut(settings, shortcutKeys::moveResize), (Shortcut{15, 2304}));
    EXPECT_EQ(mainShortcut(settings, shortcutKeys::focusSwitcher), (Shortcut{3, 768}));
}

TEST_F(ShortcutSettingsTest, EachHalfOfAMainShortcutFallsBackByItself)
{
    settings.setInteger(settingsKeys::activateOverlayKeyCode, 40);
    EXPECT_EQ(mainShortcut(settings, shortcutKeys::activateOverlay), (Shortcut{40, 768}));
    settings.remove(settingsKeys::activateOverlayKeyCode);
    settings.setInteger(settingsKeys::activateOverlayModifiers, 4096);
    EXPECT_EQ(mainShortcut(settings, shortcutKeys::activateOverlay), (Shortcut{31, 4096}));
}

TEST_F(ShortcutSettingsTest, AStoredZeroIsTaken)
{
    settings.setInteger(settingsKeys::activateOverlayKeyCode, 0);
    settings.setInteger(settingsKeys::activateOverlayModifiers, 0);
    EXPECT_EQ(mainShortcut(settings, shortcutKeys::activateOverlay), (Shortcut{0, 0}));
}

TEST_F(ShortcutSettingsTest, MainModifiersThatAreNoNumberCountAsAbsent)
{
    settings.setString(settingsKeys::activateOverlayModifiers, "256");
    EXPECT_EQ(mainShortcut(settings, shortcutKeys::activateOverlay).modifiers, 768);
    settings.setReal(settingsKeys::activateOverlayModifiers, 256.9);
    EXPECT_EQ(mainShortcut(settings, shortcutKeys::activateOverlay).modifiers, 256);
}

TEST_F(ShortcutSettingsTest, MainModifiersWrapTo32Bits)
{
    settings.setInteger(settingsKeys::moveResizeModifiers, (std::int64_t{1} << 32) + 256);
    EXPECT_EQ(mainShortcut(settings, shortcutKeys::moveResize).modifiers, 256);
    settings.setInteger(settingsKeys::moveResizeModifiers, -1);
    EXPECT_EQ(mainShortcut(settings, shortcutKeys::moveResize).modifiers, 0xFFFFFFFF);
}

TEST_F(ShortcutSettingsTest, AMainKeyCodeIsTakenAsItIsStored)
{
    settings.setInteger(settingsKeys::moveResizeKeyCode, -1);
    EXPECT_EQ(mainShortcut(settings, shortcutKeys::moveResize).keyCode, -1);
    settings.setInteger(settingsKeys::moveResizeKeyCode, 4294967296);
    EXPECT_EQ(mainShortcut(settings, shortcutKeys::moveResize).keyCode, 4294967296);
    settings.setString(settingsKeys::moveResizeKeyCode, "40");
    EXPECT_EQ(mainShortcut(settings, shortcutKeys::moveResize).keyCode, 40);
    settings.setString(settingsKeys::moveResizeKeyCode, "K");
    EXPECT_EQ(mainShortcut(settings, shortcutKeys::moveResize).keyCode, 0);
}

TEST_F(ShortcutSettingsTest, NavigationShortcutsAreUnsetWhileAbsent)
{
    EXPECT_EQ(navigationShortcut(settings, shortcutKeys::nextLayout), Shortcut{});
    EXPECT_EQ(navigationShortcut(settings, shortcutKeys::previousLayout), Shortcut{});
    EXPECT_EQ(navigationShortcut(settings, shortcutKeys::nextScreen), Shortcut{});
    EXPECT_EQ(navigationShortcut(settings, shortcutKeys::previousScreen), Shortcut{});
}

TEST_F(ShortcutSettingsTest, NavigationShortcutsArePlainIntegers)
{
    settings.setInteger(settingsKeys::nextLayoutKeyCode, 45);
    settings.setString(settingsKeys::nextLayoutModifiers, "256");
    EXPECT_EQ(navigationShortcut(settings, shortcutKeys::nextLayout), (Shortcut{45, 256}));
    settings.setInteger(settingsKeys::previousScreenKeyCode, 70000);
    settings.setInteger(settingsKeys::previousScreenModifiers, -1);
    EXPECT_EQ(navigationShortcut(settings, shortcutKeys::previousScreen), (Shortcut{70000, -1}));
}

TEST_F(ShortcutSettingsTest, KeysInsideAModeFallBackOnlyWhileAbsent)
{
    const std::map<std::string_view, KeyCode> fallbacks{
        {settingsKeys::fsToggleMinimizedKeyCode, 46}, {settingsKeys::fsToggleAllWindowsKeyCode, 48},
        {settingsKeys::mrMoveLeftKeyCode, 123},       {settingsKeys::mrMoveRightKeyCode, 124},
        {settingsKeys::mrMoveUpKeyCode, 126},         {settingsKeys::mrMoveDownKeyCode, 125},
        {settingsKeys::mrCycleWindowsKeyCode, 48},    {settingsKeys::mrExitModeKeyCode, 53},
        {settingsKeys::mrMinimizeKeyCode, 46},
    };
    for (const auto& [key, fallback] : fallbacks) {
        EXPECT_EQ(modeKeyCode(settings, key), fallback) << key;
        settings.setInteger(key, 0);
        EXPECT_EQ(modeKeyCode(settings, key), 0) << key;
        settings.setInteger(key, 40);
        EXPECT_EQ(modeKeyCode(settings, key), 40) << key;
    }
}

TEST_F(ShortcutSettingsTest, AModeKeyIgnoresItsModifiers)
{
    settings.setInteger(settingsKeys::mrMoveLeftModifiers, 256);
    EXPECT_EQ(modeKeyCode(settings, settingsKeys::mrMoveLeftKeyCode), 123);
    EXPECT_EQ(journal.count("UserDefaults.object(mrMoveLeftModifiers"), 0U);
}

TEST_F(ShortcutSettingsTest, AModeKeyThatNoKeyHasIsNone)
{
    settings.setInteger(settingsKeys::mrMoveLeftKeyCode, (std::int64_t{1} << 32) + 123);
    EXPECT_EQ(modeKeyCode(settings, settingsKeys::mrMoveLeftKeyCode), -1);
    settings.setInteger(settingsKeys::mrMoveLeftKeyCode, -5);
    EXPECT_EQ(modeKeyCode(settings, settingsKeys::mrMoveLeftKeyCode), -1);
}

TEST_F(ShortcutSettingsTest, TheResizeModifierIsShiftUntilAnotherIsChosen)
{
    EXPECT_EQ(resizeModifierFlags(settings), eventFlags::shift);
    settings.setInteger(settingsKeys::mrResizeModifierFlags, 0);
    EXPECT_EQ(resizeModifierFlags(settings), eventFlags::shift);
    settings.setInteger(settingsKeys::mrResizeModifierFlags, 524288);
    EXPECT_EQ(resizeModifierFlags(settings), eventFlags::option);
}

TEST_F(ShortcutSettingsTest, TheResizeModifierIsNeverReadAsAHotKeyMask)
{
    settings.setInteger(settingsKeys::mrResizeModifierFlags, 2048);
    EXPECT_EQ(resizeModifierFlags(settings), 2048U);
    EXPECT_EQ(resizeModifierFlags(settings) & eventFlags::deviceIndependentMask, 0U);
}

TEST_F(ShortcutSettingsTest, ANegativeResizeModifierIsFatal)
{
    settings.setInteger(settingsKeys::mrResizeModifierFlags, -1);
    EXPECT_EQ(fatalErrorOf([this] { static_cast<void>(resizeModifierFlags(settings)); }),
              "The resize modifier flags are negative");
}

TEST_F(ShortcutSettingsTest, AnUnknownKeyboardProfileIsQwerty)
{
    EXPECT_EQ(keyboardLayoutProfile(settings), KeyboardLayoutProfile::qwerty);
    settings.setString(settingsKeys::keyboardLayoutProfile, "dvorak");
    EXPECT_EQ(keyboardLayoutProfile(settings), KeyboardLayoutProfile::qwerty);
    settings.setString(settingsKeys::keyboardLayoutProfile, "Dvorak");
    EXPECT_EQ(keyboardLayoutProfile(settings), KeyboardLayoutProfile::dvorak);
}

TEST_F(ShortcutSettingsTest, ResettingWritesEveryShortcutAndNothingElse)
{
    resetShortcuts(settings);

    const std::map<std::string, std::int64_t> integers{
        {"activateOverlayKeyCode", 31},     {"activateOverlayModifiers", 768}, {"nextLayoutKeyCode", 125},
        {"nextLayoutModifiers", 0},         {"previousLayoutKeyCode", 126},    {"previousLayoutModifiers", 0},
        {"nextScreenKeyCode", 124},         {"nextScreenModifiers", 0},        {"previousScreenKeyCode", 123},
        {"previousScreenModifiers", 0},     {"focusSwitcherKeyCode", 3},       {"focusSwitcherModifiers", 768},
        {"fsToggleMinimizedKeyCode", 46},   {"fsToggleMinimizedModifiers", 0}, {"fsToggleAllWindowsKeyCode", 48},
        {"fsToggleAllWindowsModifiers", 0}, {"moveResizeKeyCode", 15},         {"moveResizeModifiers", 2304},
        {"mrMoveLeftKeyCode", 123},         {"mrMoveLeftModifiers", 0},        {"mrMoveRightKeyCode", 124},
        {"mrMoveRightModifiers", 0},        {"mrMoveUpKeyCode", 126},          {"mrMoveUpModifiers", 0},
        {"mrMoveDownKeyCode", 125},         {"mrMoveDownModifiers", 0},        {"mrCycleWindowsKeyCode", 48},
        {"mrCycleWindowsModifiers", 0},     {"mrExitModeKeyCode", 53},         {"mrExitModeModifiers", 0},
        {"mrMinimizeKeyCode", 46},          {"mrMinimizeModifiers", 0},
    };
    std::map<std::string, PropertyValue, std::less<>> expected{{"fsPopupPosition", {std::string("center")}}};
    for (const auto& [key, value] : integers) {
        expected.emplace(key, PropertyValue{value});
    }
    EXPECT_EQ(store.contents(), expected);
}

TEST_F(ShortcutSettingsTest, ResettingFollowsTheKeyboardProfileForTwoKeysOnly)
{
    struct Case {
        const char* profile;
        std::int64_t activateOverlay;
        std::int64_t moveResize;
    };
    for (const auto& [profile, activateOverlay, moveResize] :
         {Case{"QWERTY", 31, 15}, Case{"Colemak", 41, 1}, Case{"Colemak-DH", 41, 1}, Case{"Dvorak", 1, 31},
          Case{"Workman", 31, 15}}) {
        settings.setString(settingsKeys::keyboardLayoutProfile, profile);
        resetShortcuts(settings);
        EXPECT_EQ(settings.integer(settingsKeys::activateOverlayKeyCode), activateOverlay) << profile;
        EXPECT_EQ(settings.integer(settingsKeys::moveResizeKeyCode), moveResize) << profile;
        EXPECT_EQ(settings.integer(settingsKeys::focusSwitcherKeyCode), 3) << profile;
        EXPECT_EQ(settings.integer(settingsKeys::fsToggleMinimizedKeyCode), 46) << profile;
        EXPECT_EQ(settings.integer(settingsKeys::mrMinimizeKeyCode), 46) << profile;
        EXPECT_EQ(settings.string(settingsKeys::keyboardLayoutProfile), profile);
    }
}

TEST_F(ShortcutSettingsTest, ResettingKeepsTheResizeModifier)
{
    settings.setInteger(settingsKeys::mrResizeModifierFlags, 524288);
    resetShortcuts(settings);
    EXPECT_EQ(resizeModifierFlags(settings), eventFlags::option);
}

} // namespace
} // namespace quorvel
