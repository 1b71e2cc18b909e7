#pragma once

#include <cstdint>
#include <string_view>

namespace quorvel {

// The number that is stored under `key`, which must lie in 0…largest: the program never stores another one, so anything
// else is a fatal error.
std::uint32_t numberInRange(std::string_view key, std::int64_t stored, std::uint32_t largest);

} // namespace quorvel
