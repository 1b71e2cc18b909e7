#include "soak/Verdict.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <ranges>
#include <set>
#include <span>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace quorvel::soak {
namespace {

using Intervals = std::span<const Interval>;

std::size_t quarter(const Phase& phase)
{
    return phase.intervals.size() / 4;
}

Intervals secondQuarter(const Phase& phase)
{
    return Intervals(phase.intervals).subspan(quarter(phase), quarter(phase));
}

Intervals lastQuarter(const Phase& phase)
{
    return Intervals(phase.intervals).last(quarter(phase));
}

// What was found at the end of the warm-up and of all later intervals.
Intervals settled(const Phase& phase)
{
    return Intervals(phase.intervals).subspan(quarter(phase) - 1);
}

double median(Intervals intervals, const std::function<double(const Interval&)>& value)
{
    std::vector<double> values;
    values.reserve(intervals.size());
    for (const auto& interval : intervals) {
        values.push_back(value(interval));
    }
    std::ranges::sort(values);
    const auto middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

// Where the value rises above what it has been since the warm-up: "from 2 to 3 in cycle 500"; empty if it never does.
std::string rise(const Phase& phase, const std::function<std::uint64_t(const Sample&)>& value)
{
    auto least = value(settled(phase).front().sample);
    for (const auto& interval : settled(phase)) {
        const auto now = value(interval.sample);
        if (now > least) {
            return fmt::format("from {} to {} in cycle {}", least, now, interval.cycle);
        }
        least = now;
    }
    return {};
}

Verdict judgeXResources(const Phase& phase)
{
    std::set<std::string> kinds;
    for (const auto& interval : settled(phase)) {
        const auto met = interval.sample.xResources | std::views::keys;
        kinds.insert(met.begin(), met.end());
    }
    std::vector<std::string> rises;
    for (const auto& kind : kinds) {
        const auto found = rise(phase, [&](const Sample& sample) { return countOf(sample, kind); });
        if (!found.empty()) {
            rises.push_back(kind + " " + found);
        }
    }
    if (!rises.empty()) {
        return {"X resources", false, fmt::format("{}", fmt::join(rises, ", "))};
    }
    const auto counts = phase.intervals.back().sample.xResources | std::views::values;
    return {"X resources", true,
            fmt::format("{} of {} kinds, never more at {} readings",
                        std::accumulate(counts.begin(), counts.end(), std::uint32_t{0}), kinds.size(),
                        settled(phase).size())};
}

Verdict judgeNoRise(const Phase& phase, const std::string& quantity,
                    const std::function<std::uint64_t(const Sample&)>& value)
{
    const auto found = rise(phase, value);
    if (!found.empty()) {
        return {quantity, false, found};
    }
    return {quantity, true,
            fmt::format("{}, never more at {} readings", value(phase.intervals.back().sample), settled(phase).size())};
}

Verdict judgeNone(const Phase& phase, const std::string& quantity,
                  const std::function<std::size_t(const Sample&)>& value)
{
    const auto left =
        std::ranges::find_if(phase.intervals, [&](const Interval& each) { return value(each.sample) != 0; });
    if (left == phase.intervals.end()) {
        return {quantity, true, fmt::format("none at all {} readings", phase.intervals.size())};
    }
    return {quantity, false, fmt::format("{} in cycle {}", value(left->sample), left->cycle)};
}

Verdict judgeMemory(const Phase& phase)
{
    const auto resident = [](const Interval& interval) {
        return static_cast<double>(interval.sample.residentKibibytes);
    };
    const double before = median(secondQuarter(phase), resident);
    const double after = median(lastQuarter(phase), resident);
    const int cycles = lastQuarter(phase).front().cycle - secondQuarter(phase).front().cycle;
    const double growth = after - before;
    const double intended = phase.keptBytesPerCycle * cycles / 1024.0;
    const auto limit = intended == 0.0 ? fmt::format("{}", memoryNoiseKibibytes)
                                       : fmt::format("{} and {:.0f} by intent", memoryNoiseKibibytes, intended);
    return {"resident memory", growth <= intended + memoryNoiseKibibytes,
            fmt::format("{:+.0f} KiB in {} cycles, {:+.1f} bytes each; noise: {} KiB", growth, cycles,
                        growth * 1024 / cycles, limit)};
}

Verdict judgeLatency(const Phase& phase)
{
    const auto latency = [](const Interval& interval) { return interval.median.count(); };
    const double before = median(secondQuarter(phase), latency);
    const double after = median(lastQuarter(phase), latency);
    const double limit = before * latencyNoiseFactor + latencyNoise.count();
    return {"latency", after <= limit,
            fmt::format("{:.2f} ms, before {:.2f} ms; noise: up to {:.2f} ms", after, before, limit)};
}

} // namespace

std::vector<Verdict> judge(const Phase& phase, Judging judging)
{
    std::vector<Verdict> verdicts{
        judgeXResources(phase),
        judgeNoRise(phase, "pixmap bytes", &Sample::pixmapBytes),
        judgeNoRise(phase, "descriptors", &Sample::descriptors),
        judgeNone(phase, "grabs", &Sample::grabs),
        judgeNone(phase, "windows on the screen", &Sample::visibleWindows),
    };
    if (judging == Judging::everything) {
        verdicts.push_back(judgeMemory(phase));
        verdicts.push_back(judgeLatency(phase));
    }
    return verdicts;
}

} // namespace quorvel::soak
