#pragma once

#include <chrono>
#include <stdexcept>
#include <string>

namespace quorvel::xtest {

// What the harness throws when a test cannot go on: a wait that ran out, a client that did not start, an X error.
class HarnessError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The end of a wait. Waits end by an event; only a failing test ever reaches this, so it is long.
class Deadline {
public:
    static constexpr std::chrono::seconds patience{60};

    // Milliseconds left, for poll(); never negative.
    int remaining() const;
    bool hasPassed() const { return remaining() == 0; }

private:
    std::chrono::steady_clock::time_point end = std::chrono::steady_clock::now() + patience;
};

// Waits until `descriptor` can be read; throws HarnessError naming `what` when the deadline passes first.
void waitUntilReadable(int descriptor, const Deadline& deadline, const std::string& what);

} // namespace quorvel::xtest
