#include "preferences/ShortcutText.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>
#include <utility>

#include <fmt/format.h>

#include "base/Keys.h"

namespace quorvel {

namespace {

constexpr std::int64_t commandKey = 55;

constexpr std::array<std::pair<std::int64_t, std::string_view>, 18> specialKeys{{
    {36, "Return"},
    {48, "Tab"},
    {49, "Space"},
    {51, "Delete"},
    {53, "Escape"},
    {commandKey, "⌘"},
    {56, "Shift"},
    {57, "Caps Lock"},
    {58, "Option"},
    {59, "Control"},
    {60, "Right Shift"},
    {61, "Right Option"},
    {62, "Right Control"},
    {63, "Function"},
    {123, "←"},
    {124, "→"},
    {125, "↓"},
    {126, "↑"},
}};

// In the order in which they are shown.
struct Modifier {
    std::uint32_t mask;
    std::string_view symbol;
    std::string_view ModifierNames::* name;
};

constexpr std::array<Modifier, 4> modifiers{{
    {hotKeyModifiers::command, "⌘", &ModifierNames::command},
    {hotKeyModifiers::shift, "⇧", &ModifierNames::shift},
    {hotKeyModifiers::option, "⌥", &ModifierNames::option},
    {hotKeyModifiers::control, "⌃", &ModifierNames::control},
}};

bool isHeld(const Modifier& modifier, const Shortcut& shortcut)
{
    return (shortcut.modifiers & modifier.mask) != 0;
}

std::string keyName(std::int64_t keyCode, KeyboardLayoutProfile profile)
{
    const auto special = std::ranges::find(specialKeys, keyCode, &decltype(specialKeys)::value_type::first);
    if (special != specialKeys.end()) {
        return std::string(special->second);
    }
    for (const auto& [code, name] : keyNamesFor(profile)) {
        if (code == keyCode) {
            return name;
        }
    }
    return fmt::format("Key {}", keyCode);
}

} // namespace

std::string shortcutText(const Shortcut& shortcut, KeyboardLayoutProfile profile)
{
    if (shortcut.keyCode == 0) {
        return "None";
    }
    std::string text;
    for (const auto& modifier : modifiers) {
        if (isHeld(modifier, shortcut)) {
            text += modifier.symbol;
        }
    }
    return text + keyName(shortcut.keyCode, profile);
}

std::string spelledOutShortcut(const Shortcut& shortcut, KeyboardLayoutProfile profile, const ModifierNames& names)
{
    std::string text;
    for (const auto& modifier : modifiers) {
        if (isHeld(modifier, shortcut)) {
            text += std::string(names.*modifier.name) + "+";
        }
    }
    const bool hasSymbols = !text.empty() || shortcut.keyCode == commandKey;
    if (shortcut.keyCode == 0 || !hasSymbols) {
        return {};
    }
    const bool isCommand = shortcut.keyCode == commandKey;
    return text + (isCommand ? std::string(names.command) : keyName(shortcut.keyCode, profile));
}

} // namespace quorvel
