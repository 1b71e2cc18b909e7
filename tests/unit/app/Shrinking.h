#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quorvel {

// The fewest steps of a failing walk that it can be cut down to and still fail: none of them can be left out. `fails`
// walks from a fresh beginning each time.
template <class Step, class Fails>
std::vector<Step> shrunk(std::vector<Step> steps, const Fails& fails)
{
    for (auto chunk = std::max<std::size_t>(steps.size() / 2, 1); chunk > 0; chunk /= 2) {
        for (std::size_t begin = 0; begin < steps.size();) {
            auto shorter = steps;
            const auto end = std::min(begin + chunk, steps.size());
            shorter.erase(shorter.begin() + static_cast<std::ptrdiff_t>(begin),
                          shorter.begin() + static_cast<std::ptrdiff_t>(end));
            if (fails(shorter)) {
                steps = std::move(shorter);
            } else {
                begin = end;
            }
        }
    }
    return steps;
}

} // namespace quorvel
