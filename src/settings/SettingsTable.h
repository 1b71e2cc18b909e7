#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

#include "base/KeyboardLayoutProfile.h"

namespace quorvel {

enum class SettingType { integer, real, boolean, string, data, stringArray, stringDictionary };

// One key code for each keyboard profile, in the order of the enumeration.
using KeyCodesByProfile = std::array<std::int64_t, allKeyboardLayoutProfiles.size()>;

// A value written into the table; std::monostate stands for none.
using SettingDefault = std::variant<std::monostate, std::int64_t, double, bool, std::string_view, KeyCodesByProfile>;

// One setting. What preferences show for an absent key and what the program does then are two separate defaults.
struct SettingDefinition {
    std::string_view key;
    SettingType type = SettingType::integer;
    SettingDefault paneDefault;    // what a control shows while the key is absent; showing it writes nothing
    SettingDefault readerFallback; // what the program uses while the key is absent; none: it acts as if not set
    SettingDefault resetValue;     // what "Reset All Shortcuts" writes; none: it leaves the key alone
};

// Every setting of the program.
std::span<const SettingDefinition> settingsTable();

// The row of a key, or none.
const SettingDefinition* findSettingDefinition(std::string_view key);

// The row of a key of the table; any other key is a programming error.
const SettingDefinition& settingDefinition(std::string_view key);

} // namespace quorvel
