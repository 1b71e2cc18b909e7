#pragma once

#include <string>
#include <vector>

#include "soak/Phase.h"

namespace quorvel::soak {

enum class Judging {
    everything,
    exactOnly, // not memory and latency, which mean little under a sanitizer or in a short run
};

// Whether a quantity stayed as it was after the warm-up, which is the first quarter of the intervals.
struct Verdict {
    std::string quantity;
    bool isSteady = false;
    std::string finding;
};

// X resources of each kind, pixmap bytes and descriptors must never be more at the end of an interval than at the one
// before, from the end of the warm-up on, and there must be neither a grab nor a window left at any of them. Of memory
// and latency the median of the last quarter must not lie above that of the second one by more than the noise; of
// memory also what cycles leave by intent. The phase has four intervals at least.
std::vector<Verdict> judge(const Phase& phase, Judging judging);

// The noise of resident memory: pages that the allocator gives back and takes again, and the like.
inline constexpr int memoryNoiseKibibytes = 256;

// The noise of latency on a machine that does other things, too.
inline constexpr double latencyNoiseFactor = 1.25;
inline constexpr bench::Milliseconds latencyNoise{0.5};

} // namespace quorvel::soak
