#include "latency/Measurements.h"

#include "support/Patience.h"

namespace quorvel::bench {

namespace {

constexpr int warmUpRuns = 3;

const Chord escape{{}, XKB_KEY_Escape};

void add(Series& series, std::optional<Milliseconds> time)
{
    if (time) {
        series.add(*time);
    } else {
        series.addMiss();
    }
}

} // namespace

QuorvelProcess::QuorvelProcess(BenchDesktop& desktop, std::string_view settings)
{
    configuration.write("quorvel/settings.plist", settings);
    program.emplace(desktop.display(), QUORVEL_PROGRAM, configuration);
    program->waitForLineStartingWith("Registered hotkey id=3");
    desktop.eventProbe().rest();
}

Series repeat(int runs, const std::function<std::optional<Milliseconds>()>& once)
{
    Series series;
    for (int run = -warmUpRuns; run < runs; ++run) {
        const auto time = once();
        if (run >= 0) {
            add(series, time);
        }
    }
    return series;
}

Series overlayTimes(BenchDesktop& desktop, int runs, const Chord& hotKey, std::size_t windowCount,
                    const std::function<void()>& afterEach)
{
    auto& probe = desktop.eventProbe();
    const auto before = probe.visibleCount();
    return repeat(runs, [&]() -> std::optional<Milliseconds> {
        const auto time = probe.pressUntilPainted(hotKey, windowCount);
        if (!probe.pressUntilVisible(escape, before)) {
            throw xtest::HarnessError("what a hot key showed did not go away on Escape");
        }
        afterEach();
        return time;
    });
}

Series placementTimes(BenchDesktop& desktop, int runs, const std::array<Chord, 2>& chords,
                      const std::function<void()>& beforeEach)
{
    auto& probe = desktop.eventProbe();
    const auto topLevel = probe.topLevelOf(desktop.target());
    std::array<xtest::PixelRect, 2> places;
    for (std::size_t index = 0; index < 2; ++index) {
        beforeEach();
        const auto previous = probe.frameOf(topLevel);
        probe.pressUntilVisible(chords.at(index), probe.visibleCount());
        probe.waitFor([&] {
            probe.rest();
            return probe.frameOf(topLevel) != previous;
        });
        places.at(index) = probe.frameOf(topLevel);
    }
    std::size_t next = 0;
    return repeat(runs, [&] {
        beforeEach();
        const auto index = next;
        next = 1 - next;
        return probe.pressUntilPlaced(chords.at(index), topLevel, places.at(index));
    });
}

} // namespace quorvel::bench
