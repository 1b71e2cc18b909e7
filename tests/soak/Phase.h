#pragma once

#include <string>
#include <vector>

#include "report/Series.h"
#include "soak/Sample.h"

namespace quorvel::soak {

// What was found after so many cycles, and the latency of those since the interval before.
struct Interval {
    int cycle = 0;
    Sample sample{};
    bench::Milliseconds median{0.0};
    bench::Milliseconds percentile95{0.0};
};

// One exercise from its first cycle to its last.
struct Phase {
    std::string name;
    std::string latency;       // what is timed
    int keptBytesPerCycle = 0; // what a cycle leaves in memory by intent
    std::vector<Interval> intervals{};
};

} // namespace quorvel::soak
