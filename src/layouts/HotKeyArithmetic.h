#pragma once

#include <cstdint>
#include <string_view>

namespace quorvel {

// The sum of two 32-bit numbers; a sum that does not fit is a fatal error.
std::uint32_t checkedSum(std::uint32_t a, std::uint32_t b);

// The signature of the hot keys of an application of that name: its UTF-16 code units, eight bits each, folded into 32
// bits. Of a plain name that is the four-character code of its last four characters.
std::uint32_t hotKeySignature(std::u16string_view applicationName);

} // namespace quorvel
