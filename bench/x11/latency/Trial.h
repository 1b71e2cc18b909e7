#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>

#include "latency/BenchDesktop.h"
#include "report/Series.h"

namespace quorvel::bench {

// Does the measured thing once, and leaves the desktop ready for the next time: how long it took, or nothing where it
// did not happen.
using Trial = std::function<std::optional<Milliseconds>()>;

// What is done, unmeasured, before or after the measured press.
using Step = std::function<void()>;

// From the hot key to that many painted windows, which Escape takes away again.
Trial overlayTrial(BenchDesktop& desktop, const Chord& hotKey, std::size_t windowCount, const Step& afterEach = [] {});

// From a chord to the moved window. Two chords take turns; where each of them leaves the window is learnt first, so
// that every contestant is timed by its own idea of the place.
Trial placementTrial(BenchDesktop& desktop, const std::array<Chord, 2>& chords, const Step& beforeEach = [] {});

// From a chord to another active window than before. Two chords take turns.
Trial activationTrial(BenchDesktop& desktop, const std::array<Chord, 2>& chords, const Step& beforeEach = [] {});

} // namespace quorvel::bench
