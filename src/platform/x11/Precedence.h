#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "base/Subscription.h"
#include "base/WeakGuard.h"

namespace quorvel {
class MainQueue;
}

namespace quorvel::x11 {

// Lets what a person waits for go before what merely has to be done. The server works for one client at a time: as long
// as it takes windows away and uncovers what lies below them, no window moves.
class Precedence {
public:
    explicit Precedence(MainQueue& mainQueue) : mainQueue(mainQueue) {}

    // Something that a person waits for is under way until the token goes.
    Subscription claim();

    // Runs the work in a later turn of the loop, once nothing is under way any more; in the next one if nothing is by
    // then. It is held up for 16 ms at most, a frame of a display, whatever others do.
    void afterwards(std::function<void()> work);

private:
    void reviewSoon();
    void review();
    void run();

    MainQueue& mainQueue;
    int claims = 0;
    std::vector<std::function<void()>> waiting;
    std::uint64_t batch = 0; // tells the work that waits from earlier work
    bool hasLimit = false;   // the time after which it waits no longer is set
    WeakGuard weakGuard;
};

} // namespace quorvel::x11
