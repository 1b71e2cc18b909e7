#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

namespace quorvel {

// The texts under which the cases of an enumeration are stored, each case once.
template <class Enumeration, std::size_t count>
struct RawValues {
    std::array<std::pair<Enumeration, std::string_view>, count> pairs;

    constexpr std::string_view textOf(Enumeration value) const
    {
        const auto found = std::ranges::find(pairs, value, &std::pair<Enumeration, std::string_view>::first);
        return found == pairs.end() ? std::string_view() : found->second;
    }

    constexpr std::optional<Enumeration> caseOf(std::string_view text) const
    {
        const auto found = std::ranges::find(pairs, text, &std::pair<Enumeration, std::string_view>::second);
        return found == pairs.end() ? std::nullopt : std::optional(found->first);
    }
};

} // namespace quorvel
