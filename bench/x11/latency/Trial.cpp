#include "latency/Trial.h"

#include "support/Patience.h"

namespace quorvel::bench {

namespace {

const Chord escape{{}, XKB_KEY_Escape};

xtest::PixelRect learntPlace(BenchDesktop& desktop, xcb_window_t topLevel, const Chord& chord)
{
    auto& probe = desktop.eventProbe();
    const auto previous = probe.frameOf(topLevel);
    probe.pressUntilVisible(chord, probe.visibleCount());
    const bool moved = probe.waitFor([&] {
        probe.rest();
        return probe.frameOf(topLevel) != previous;
    });
    if (!moved) {
        throw xtest::HarnessError("the window did not move");
    }
    return probe.frameOf(topLevel);
}

} // namespace

Trial overlayTrial(BenchDesktop& desktop, const Chord& hotKey, std::size_t windowCount, const Step& afterEach)
{
    auto& probe = desktop.eventProbe();
    const auto before = probe.visibleCount();
    return [&probe, hotKey, windowCount, afterEach, before] {
        const auto time = probe.pressUntilPainted(hotKey, windowCount);
        if (!probe.pressUntilVisible(escape, before)) {
            throw xtest::HarnessError("what a hot key showed did not go away on Escape");
        }
        afterEach();
        return time;
    };
}

Trial placementTrial(BenchDesktop& desktop, const std::array<Chord, 2>& chords, const Step& beforeEach)
{
    auto& probe = desktop.eventProbe();
    const auto topLevel = probe.topLevelOf(desktop.target());
    std::array<xtest::PixelRect, 2> places;
    for (std::size_t index = 0; index < 2; ++index) {
        beforeEach();
        places.at(index) = learntPlace(desktop, topLevel, chords.at(index));
    }
    return [&probe, topLevel, chords, beforeEach, places, next = std::size_t(0)] mutable {
        beforeEach();
        const auto index = next;
        next = 1 - next;
        const auto time = probe.pressUntilPlaced(chords.at(index), topLevel, places.at(index));
        probe.rest();
        return time;
    };
}

Trial activationTrial(BenchDesktop& desktop, const std::array<Chord, 2>& chords, const Step& beforeEach)
{
    auto& probe = desktop.eventProbe();
    return [&probe, chords, beforeEach, next = std::size_t(0)] mutable {
        beforeEach();
        const auto index = next;
        next = 1 - next;
        return probe.pressUntilOtherActive(chords.at(index));
    };
}

} // namespace quorvel::bench
