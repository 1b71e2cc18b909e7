#include "settings/ShortcutSettings.h"

#include <cstddef>
#include <limits>
#include <string>
#include <variant>

#include "base/FatalError.h"
#include "settings/Settings.h"
#include "settings/SettingsTable.h"

namespace quorvel {

namespace {

std::int64_t fallback(std::string_view key)
{
    return std::get<std::int64_t>(settingDefinition(key).readerFallback);
}

std::int64_t integerOrFallback(const Settings& settings, std::string_view key)
{
    return settings.isStored(key) ? settings.integer(key) : fallback(key);
}

} // namespace

bool isShortcutKey(std::string_view key)
{
    return findSettingDefinition(key) != nullptr && (key.ends_with("KeyCode") || key.ends_with("Modifiers"));
}

Shortcut mainShortcut(const Settings& settings, const ShortcutKeys& keys)
{
    const auto modifiers = settings.integerNumber(keys.modifiers);
    return {
        .keyCode = integerOrFallback(settings, keys.keyCode),
        .modifiers = modifiers ? static_cast<std::uint32_t>(*modifiers) : fallback(keys.modifiers),
    };
}

Shortcut navigationShortcut(const Settings& settings, const ShortcutKeys& keys)
{
    return {.keyCode = settings.integer(keys.keyCode), .modifiers = settings.integer(keys.modifiers)};
}

KeyCode modeKeyCode(const Settings& settings, std::string_view key)
{
    const auto stored = integerOrFallback(settings, key);
    const bool isKeyCode = stored >= 0 && stored <= std::numeric_limits<KeyCode>::max();
    return isKeyCode ? static_cast<KeyCode>(stored) : -1;
}

std::uint64_t resizeModifierFlags(const Settings& settings)
{
    const auto stored = settings.integer(settingsKeys::mrResizeModifierFlags);
    if (stored < 0) {
        fatalError("The resize modifier flags are negative");
    }
    return static_cast<std::uint64_t>(stored > 0 ? stored : fallback(settingsKeys::mrResizeModifierFlags));
}

KeyboardLayoutProfile keyboardLayoutProfile(const Settings& settings)
{
    const auto stored = settings.boundString(settingsKeys::keyboardLayoutProfile);
    return keyboardLayoutProfileFromRawValue(stored).value_or(KeyboardLayoutProfile::qwerty);
}

void resetShortcuts(Settings& settings)
{
    const auto profile = static_cast<std::size_t>(keyboardLayoutProfile(settings));
    for (const auto& setting : settingsTable()) {
        if (const auto* number = std::get_if<std::int64_t>(&setting.resetValue)) {
            settings.setInteger(setting.key, *number);
        } else if (const auto* keyCodes = std::get_if<KeyCodesByProfile>(&setting.resetValue)) {
            settings.setInteger(setting.key, keyCodes->at(profile));
        } else if (const auto* text = std::get_if<std::string_view>(&setting.resetValue)) {
            settings.setString(setting.key, std::string(*text));
        }
    }
}

} // namespace quorvel
