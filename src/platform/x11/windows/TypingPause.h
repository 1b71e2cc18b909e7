#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "base/Subscription.h"
#include "base/WeakGuard.h"

namespace quorvel {
class MainQueue;
}

namespace quorvel::x11 {

class Connection;
class WindowManagerBarrier;

// While the window manager moves the focus, what a person types would reach whoever has it at that moment. During a
// pause it waits in the server.
class TypingPause {
public:
    TypingPause(Connection& connection, MainQueue& mainQueue, WindowManagerBarrier& barrier);
    TypingPause(const TypingPause&) = delete;
    TypingPause& operator=(const TypingPause&) = delete;
    ~TypingPause();

    // Keys go to a window of this program that has the focus, until the token goes. It takes the focus back, with that
    // function, at the end of every pause.
    Subscription keepFocus(std::function<void()> takeBack);

    // From now on until the window manager has dealt with what it is asked for in this turn of the loop, or a fifth of
    // a second has passed. Without effect where another program has the whole keyboard, for then no key reaches the
    // focus.
    void begin();

    // The same, if somebody keeps the focus.
    void beginIfFocusIsKept();

    // Calls back once the window manager has dealt with all that it has been asked for so far.
    void afterEarlierRequests(std::function<void()> callback);

    bool isOn() const { return isPausing; }

private:
    using TakeBack = std::shared_ptr<const std::function<void()>>;

    void endLater(std::uint64_t awaited);
    void end();

    Connection& connection;
    MainQueue& mainQueue;
    WindowManagerBarrier& barrier;
    std::vector<TakeBack> keepers;
    std::uint64_t begun = 0; // how often; a pause ends for the last one that asked for it
    bool isPausing = false;
    WeakGuard weakGuard;
};

} // namespace quorvel::x11
