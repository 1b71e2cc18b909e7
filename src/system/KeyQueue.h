#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>

#include "base/WeakGuard.h"
#include "system/CapturedKey.h"

namespace quorvel {

class MainQueue;

// Keys on their way to a mode. Of keys that come together each waits until all that the one before it has caused to be
// done in a later turn, such as moving a window, has been done. Main thread only.
class KeyQueue {
public:
    KeyQueue(MainQueue& mainQueue, CapturedKeyHandler handler);

    // The handler gets it in a later turn.
    void deliverLater(CapturedKey key);

    // The handler gets it at once, unless it has to wait for others.
    void deliver(CapturedKey key);

private:
    void askForTurn(std::size_t earlier);
    void takeTurn();
    void deliverNext();

    MainQueue& mainQueue;
    CapturedKeyHandler handler;
    std::deque<CapturedKey> waiting;
    std::uint64_t turns = 0;
    std::optional<std::uint64_t> dueTurn; // in which the next one goes on, or it turns out that there is none
    WeakGuard weakly;
};

} // namespace quorvel
