#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>

#include "latency/BenchDesktop.h"
#include "latency/Series.h"
#include "support/ProgramUnderTest.h"
#include "support/TemporaryDirectory.h"

namespace quorvel::bench {

// The measured program with these settings, ready when the constructor returns.
class QuorvelProcess {
public:
    QuorvelProcess(BenchDesktop& desktop, std::string_view settings);

    // Keeps its output from filling up; a program that cannot write its log stands still.
    void drainOutput() { program->outputLines(); }

private:
    xtest::TemporaryDirectory configuration;
    std::optional<xtest::ProgramUnderTest> program;
};

// Runs `once` after a few unmeasured runs.
Series repeat(int runs, const std::function<std::optional<Milliseconds>()>& once);

// The times from the hot key to that many painted windows, which Escape takes away again.
Series overlayTimes(
    BenchDesktop& desktop, int runs, const Chord& hotKey, std::size_t windowCount,
    const std::function<void()>& afterEach = [] {});

// The times from a chord to the moved window. Two chords take turns; where each of them leaves the window is learnt
// first, so that every contender is timed by its own idea of the place.
Series placementTimes(
    BenchDesktop& desktop, int runs, const std::array<Chord, 2>& chords,
    const std::function<void()>& beforeEach = [] {});

} // namespace quorvel::bench
