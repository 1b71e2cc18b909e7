#pragma once

#include <algorithm>
#include <functional>
#include <ranges>

namespace quorvel::x11 {

template <std::ranges::input_range Range, class Value, class Projection = std::identity>
bool contains(const Range& range, const Value& value, Projection projection = {})
{
    return std::ranges::find(range, value, projection) != std::ranges::end(range);
}

} // namespace quorvel::x11
