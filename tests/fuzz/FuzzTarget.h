#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string_view>

namespace quorvel {

// What a target does with one input. What it finds wrong ends the process, as fuzzing engines expect it.
void fuzz(std::span<const std::uint8_t> input);

inline std::string_view textOf(std::span<const std::uint8_t> input)
{
    if (input.empty()) {
        return ""; // which is somewhere, as readers may expect
    }
    return {reinterpret_cast<const char*>(input.data()), input.size()};
}

// What must hold for every input.
inline void require(bool holds, const char* what)
{
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

} // namespace quorvel
