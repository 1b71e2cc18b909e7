#pragma once

#include <cstdint>
#include <string_view>

#include "base/KeyboardLayoutProfile.h"
#include "base/Keys.h"
#include "settings/SettingsKeys.h"

namespace quorvel {

class Settings;

// The two settings of one shortcut.
struct ShortcutKeys {
    std::string_view keyCode;
    std::string_view modifiers;
};

namespace shortcutKeys {
inline constexpr ShortcutKeys activateOverlay{settingsKeys::activateOverlayKeyCode,
                                              settingsKeys::activateOverlayModifiers};
inline constexpr ShortcutKeys moveResize{settingsKeys::moveResizeKeyCode, settingsKeys::moveResizeModifiers};
inline constexpr ShortcutKeys focusSwitcher{settingsKeys::focusSwitcherKeyCode, settingsKeys::focusSwitcherModifiers};
inline constexpr ShortcutKeys nextLayout{settingsKeys::nextLayoutKeyCode, settingsKeys::nextLayoutModifiers};
inline constexpr ShortcutKeys previousLayout{settingsKeys::previousLayoutKeyCode,
                                             settingsKeys::previousLayoutModifiers};
inline constexpr ShortcutKeys nextScreen{settingsKeys::nextScreenKeyCode, settingsKeys::nextScreenModifiers};
inline constexpr ShortcutKeys previousScreen{settingsKeys::previousScreenKeyCode,
                                             settingsKeys::previousScreenModifiers};
inline constexpr ShortcutKeys fsToggleMinimized{settingsKeys::fsToggleMinimizedKeyCode,
                                                settingsKeys::fsToggleMinimizedModifiers};
inline constexpr ShortcutKeys fsToggleAllWindows{settingsKeys::fsToggleAllWindowsKeyCode,
                                                 settingsKeys::fsToggleAllWindowsModifiers};
inline constexpr ShortcutKeys mrMoveLeft{settingsKeys::mrMoveLeftKeyCode, settingsKeys::mrMoveLeftModifiers};
inline constexpr ShortcutKeys mrMoveRight{settingsKeys::mrMoveRightKeyCode, settingsKeys::mrMoveRightModifiers};
inline constexpr ShortcutKeys mrMoveUp{settingsKeys::mrMoveUpKeyCode, settingsKeys::mrMoveUpModifiers};
inline constexpr ShortcutKeys mrMoveDown{settingsKeys::mrMoveDownKeyCode, settingsKeys::mrMoveDownModifiers};
inline constexpr ShortcutKeys mrCycleWindows{settingsKeys::mrCycleWindowsKeyCode,
                                             settingsKeys::mrCycleWindowsModifiers};
inline constexpr ShortcutKeys mrMinimize{settingsKeys::mrMinimizeKeyCode, settingsKeys::mrMinimizeModifiers};
inline constexpr ShortcutKeys mrExitMode{settingsKeys::mrExitModeKeyCode, settingsKeys::mrExitModeModifiers};
} // namespace shortcutKeys

// A key and a mask of hotKeyModifiers as they are stored, unchecked: either may be negative or too large.
struct Shortcut {
    std::int64_t keyCode = 0;
    std::int64_t modifiers = 0;

    bool operator==(const Shortcut&) const = default;
};

// Whether a setting is a half of a shortcut.
bool isShortcutKey(std::string_view key);

// One of the three shortcuts that start a mode. An absent half is the table's fallback, and so are modifiers that are
// no number; other modifiers wrap to 32 bits. A key code of 0 means that the shortcut was cleared.
Shortcut mainShortcut(const Settings& settings, const ShortcutKeys& keys);

// A shortcut without fallback; absent halves are 0, which means that it is not set.
Shortcut navigationShortcut(const Settings& settings, const ShortcutKeys& keys);

// A key that works inside a mode: the table's fallback while absent, else what is stored, 0 (the A key) included. A
// stored number that no key has becomes -1. Modifiers of these keys are stored only and never read.
KeyCode modeKeyCode(const Settings& settings, std::string_view key);

// The modifier that turns move keys into resize keys, as eventFlags. Shift while absent or 0; a negative value is a
// fatal error.
std::uint64_t resizeModifierFlags(const Settings& settings);

// QWERTY for a text that names no profile.
KeyboardLayoutProfile keyboardLayoutProfile(const Settings& settings);

// Writes the reset value of every setting that has one; some depend on the keyboard profile.
void resetShortcuts(Settings& settings);

} // namespace quorvel
