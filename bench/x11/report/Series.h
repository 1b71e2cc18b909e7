#pragma once

#include <chrono>
#include <cstddef>
#include <utility>
#include <vector>

namespace quorvel::bench {

using Milliseconds = std::chrono::duration<double, std::milli>;

// Measured times of one thing, and how often it did not happen at all.
class Series {
public:
    Series() = default;
    Series(std::vector<Milliseconds> times, std::size_t misses) : times(std::move(times)), misses(misses) {}

    void add(Milliseconds time) { times.push_back(time); }
    void addMiss() { ++misses; }

    bool isEmpty() const { return times.empty(); }
    const std::vector<Milliseconds>& all() const { return times; }
    std::size_t missCount() const { return misses; }

    // The time that `fraction` of the runs did not exceed (nearest rank); not a number when there are none.
    Milliseconds quantile(double fraction) const;
    Milliseconds median() const { return quantile(0.5); }
    Milliseconds percentile95() const { return quantile(0.95); }

    bool operator==(const Series&) const = default;

private:
    std::vector<Milliseconds> times;
    std::size_t misses = 0;
};

} // namespace quorvel::bench
