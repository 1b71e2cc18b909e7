#include "settings/SettingsTable.h"

#include <algorithm>
#include <string>

#include "base/FatalError.h"
#include "settings/SettingsKeys.h"

namespace quorvel {

namespace {

using namespace settingsKeys;

constexpr std::monostate none;

constexpr SettingDefault integer(std::int64_t value)
{
    return value;
}

// A half of a shortcut. Preferences show an absent one as 0, whatever the program falls back to.
constexpr SettingDefinition shortcut(std::string_view key, SettingDefault readerFallback, SettingDefault resetValue)
{
    return {key, SettingType::integer, integer(0), readerFallback, resetValue};
}

// A setting with one default for preferences and program alike.
constexpr SettingDefinition plain(std::string_view key, SettingType type, SettingDefault value)
{
    return {key, type, value, value, none};
}

constexpr SettingDefinition text(std::string_view key, std::string_view value)
{
    return plain(key, SettingType::string, value);
}

constexpr SettingDefinition real(std::string_view key, double value)
{
    return plain(key, SettingType::real, value);
}

constexpr SettingDefinition boolean(std::string_view key, bool value)
{
    return plain(key, SettingType::boolean, value);
}

// A setting whose absence means an empty collection.
constexpr SettingDefinition collection(std::string_view key, SettingType type)
{
    return plain(key, type, none);
}

//                                       QWERTY, Colemak, Colemak-DH, Dvorak
constexpr KeyCodesByProfile letterO{31, 41, 41, 1};
constexpr KeyCodesByProfile letterR{15, 1, 1, 31};

constexpr std::array table{
    // Shortcuts: fallback, reset.
    shortcut(activateOverlayKeyCode, integer(31), letterO),
    shortcut(activateOverlayModifiers, integer(768), integer(768)),
    shortcut(nextLayoutKeyCode, none, integer(125)),
    shortcut(nextLayoutModifiers, none, integer(0)),
    shortcut(previousLayoutKeyCode, none, integer(126)),
    shortcut(previousLayoutModifiers, none, integer(0)),
    shortcut(nextScreenKeyCode, none, integer(124)),
    shortcut(nextScreenModifiers, none, integer(0)),
    shortcut(previousScreenKeyCode, none, integer(123)),
    shortcut(previousScreenModifiers, none, integer(0)),
    shortcut(focusSwitcherKeyCode, integer(3), integer(3)),
    shortcut(focusSwitcherModifiers, integer(768), integer(768)),
    shortcut(fsToggleMinimizedKeyCode, integer(46), integer(46)),
    shortcut(fsToggleMinimizedModifiers, none, integer(0)),
    shortcut(fsToggleAllWindowsKeyCode, integer(48), integer(48)),
    shortcut(fsToggleAllWindowsModifiers, none, integer(0)),
    SettingDefinition{fsPopupPosition, SettingType::string, std::string_view("center"), std::string_view("center"),
                      std::string_view("center")},
    shortcut(moveResizeKeyCode, integer(15), letterR),
    shortcut(moveResizeModifiers, integer(2304), integer(2304)),
    shortcut(mrMoveLeftKeyCode, integer(123), integer(123)),
    shortcut(mrMoveLeftModifiers, none, integer(0)),
    shortcut(mrMoveRightKeyCode, integer(124), integer(124)),
    shortcut(mrMoveRightModifiers, none, integer(0)),
    shortcut(mrMoveUpKeyCode, integer(126), integer(126)),
    shortcut(mrMoveUpModifiers, none, integer(0)),
    shortcut(mrMoveDownKeyCode, integer(125), integer(125)),
    shortcut(mrMoveDownModifiers, none, integer(0)),
    shortcut(mrCycleWindowsKeyCode, integer(48), integer(48)),
    shortcut(mrCycleWindowsModifiers, none, integer(0)),
    shortcut(mrExitModeKeyCode, integer(53), integer(53)),
    shortcut(mrExitModeModifiers, none, integer(0)),
    shortcut(mrMinimizeKeyCode, integer(46), integer(46)),
    shortcut(mrMinimizeModifiers, none, integer(0)),
    plain(mrResizeModifierFlags, SettingType::integer, integer(0x20000)),
    text(keyboardLayoutProfile, "QWERTY"),

    // Layout overlay. Colours end in their alpha, so "#88FFFF00" is fully transparent until a person picks a colour.
    text(overlayBorderColor, "#FFFF00"),
    text(overlayBackgroundColor, "#88FFFF00"),
    real(overlayBorderWidth, 2.0),
    real(overlayBorderRadius, 2.0),
    text(textBorderColor, "#FFFF00"),
    text(textBackgroundColor, "#88FFFF00"),
    real(textBorderWidth, 2.0),
    text(textColor, "#FFFF00"),
    real(textSize, 28.0),
    real(textBorderRadius, 6.0),
    text(labelPosition, "center"),
    boolean(isTextBold, true),
    boolean(showPreviewGrid, false),

    // Focus switcher.
    text(wsBorderColor, "#00D4FF"),
    text(wsBackgroundColor, "#8800D4FF"),
    real(wsBorderWidth, 3.0),
    real(wsBorderRadius, 8.0),
    text(wsTextBorderColor, "#FFFFFF"),
    text(wsTextBackgroundColor, "#DD000000"),
    real(wsTextBorderWidth, 2.0),
    text(wsTextColor, "#FFFFFF"),
    real(wsTextSize, 64.0),
    real(wsTextBorderRadius, 8.0),
    boolean(wsTextBold, true),
    text(wsLabelPosition, "topLeft"),
    boolean(showWindowInfo, true),
    text(fsDefaultDisplayMode, "frames"),
    SettingDefinition{fsFocusExactWindow, SettingType::boolean, none, none, none}, // the platform has the fallback

    // Move/resize mode.
    text(mrSelectionColorHex, "#0A84FFCC"),
    real(mrSelectionBorderWidth, 3.0),
    boolean(mrSelectionGlow, true),
    text(mrSnapTargetColorHex, "#30D158CC"),
    real(mrSnapTargetBorderWidth, 3.0),
    boolean(mrSnapTargetGlow, true),
    plain(mrCornerRadius, SettingType::integer, integer(10)),
    boolean(mrSnapEnabled, true),
    real(mrSnapThreshold, 20.0),
    SettingDefinition{mrSnapResistance, SettingType::real, 3.0, integer(3), none},
    real(mrMoveStep, 20.0),

    // Themes, layouts and the rest.
    collection(savedThemes, SettingType::data),
    collection(savedSwitcherThemes, SettingType::data),
    collection(savedMoveResizeThemes, SettingType::data),
    boolean(startAtLoginEnabled, false),
    collection(selectedLayoutIDs, SettingType::stringArray),
    collection(layoutShortcuts, SettingType::stringDictionary),
    boolean(didSeedDefaultLayouts, false),
};

} // namespace

std::span<const SettingDefinition> settingsTable()
{
    return table;
}

const SettingDefinition* findSettingDefinition(std::string_view key)
{
    const auto found = std::ranges::find(table, key, &SettingDefinition::key);
    return found == table.end() ? nullptr : &*found;
}

const SettingDefinition& settingDefinition(std::string_view key)
{
    const SettingDefinition* const definition = findSettingDefinition(key);
    if (definition == nullptr) {
        fatalError("No such setting: " + std::string(key));
    }
    return *definition;
}

} // namespace quorvel
