#pragma once

#include "report/Results.h"

namespace quorvel::bench {

constexpr Condition idle{};
constexpr Condition idleComposited{Load::idle, Compositing::on};
constexpr Condition loaded{Load::busyCores, Compositing::off};
constexpr Condition loadedComposited{Load::busyCores, Compositing::on};

inline Series seriesOf(std::initializer_list<double> times, std::size_t misses = 0)
{
    std::vector<Milliseconds> all;
    for (const double time : times) {
        all.emplace_back(time);
    }
    return {std::move(all), misses};
}

// Two contestants: one measured everywhere but on a loaded machine with picom, the other one only in part.
inline TaskResult sampleTask()
{
    Row quorvel{.name = "Quorvel: letter", .role = Role::quorvel};
    quorvel.under(idle).series = seriesOf({1.0, 0.5, 2.0});
    quorvel.under(idleComposited).series = seriesOf({20.0});
    quorvel.under(loaded).series = seriesOf({4.0}, 1);
    quorvel.under(loadedComposited) = {{}, "picom is not installed"};
    Row other{.name = "wmctrl (sxhkd)", .role = Role::peer};
    other.under(idle).series = seriesOf({8.0, 12.5});
    other.under(idleComposited).series = seriesOf({153.2});
    other.under(loaded).series = seriesOf({}, 2);
    other.under(loadedComposited) = {{}, "picom is not installed"};
    return {"Key to window in place", {quorvel, other}, {{"at most 3 ms", 3.0, 1.0}, {"half of wmctrl's", 0.5, 0.6}}};
}

} // namespace quorvel::bench
