#pragma once

#include <string_view>

namespace quorvel {

// The letters on labels. Independent of the keyboard profile: they are those that the keys type.
inline constexpr std::string_view labelAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";

} // namespace quorvel
