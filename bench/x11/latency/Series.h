#pragma once

#include <chrono>
#include <cstddef>
#include <vector>

namespace quorvel::bench {

using Milliseconds = std::chrono::duration<double, std::milli>;

// Measured times of one thing, and how often it did not happen at all.
class Series {
public:
    void add(Milliseconds time) { times.push_back(time); }
    void addMiss() { ++misses; }

    std::size_t count() const { return times.size(); }
    std::size_t missCount() const { return misses; }

    // The time that `fraction` of the runs did not exceed (nearest rank); not a number when there are none.
    Milliseconds quantile(double fraction) const;
    Milliseconds median() const { return quantile(0.5); }

private:
    std::vector<Milliseconds> times;
    std::size_t misses = 0;
};

} // namespace quorvel::bench
