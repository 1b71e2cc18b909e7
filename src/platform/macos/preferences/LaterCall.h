#pragma once

#include <functional>
#include <utility>

#include "base/WeakGuard.h"
#include "platform/MainQueue.h"

namespace quorvel::macos {

// Calls a function once in a later turn of the main loop, however often it is asked to until then; never after it has
// gone itself. For what must not happen inside the action of a control that it may replace.
class LaterCall {
public:
    LaterCall(MainQueue& mainQueue, std::function<void()> call) : mainQueue(mainQueue), call(std::move(call)) {}

    void schedule()
    {
        if (!std::exchange(isDue, true)) {
            mainQueue.async(weakly.guard([this] {
                isDue = false;
                call();
            }));
        }
    }

private:
    MainQueue& mainQueue;
    std::function<void()> call;
    bool isDue = false;
    WeakGuard weakly;
};

} // namespace quorvel::macos
