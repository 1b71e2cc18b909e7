#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "base/Keys.h"

namespace quorvel {

// The kind of keyboard that default keys and key names assume. Settings keep the raw value, which is also the name
// shown to a person.
enum class KeyboardLayoutProfile { qwerty, colemak, colemakDH, dvorak };

inline constexpr std::array allKeyboardLayoutProfiles{
    KeyboardLayoutProfile::qwerty,
    KeyboardLayoutProfile::colemak,
    KeyboardLayoutProfile::colemakDH,
    KeyboardLayoutProfile::dvorak,
};

std::string_view rawValue(KeyboardLayoutProfile profile);

// Exact and case-sensitive; nothing for any other text.
std::optional<KeyboardLayoutProfile> keyboardLayoutProfileFromRawValue(std::string_view text);

// Character to key; letters in upper case. A one-to-one map of the 47 keys that type a character.
using CharacterTable = std::map<std::string, KeyCode>;

// Built on the first call for a profile and kept.
const CharacterTable& characterTableFor(KeyboardLayoutProfile profile);

// The inverse of characterTableFor(), built anew.
std::map<KeyCode, std::string> keyNamesFor(KeyboardLayoutProfile profile);

} // namespace quorvel
