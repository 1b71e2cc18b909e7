#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>

#include "base/Subscription.h"
#include "platform/x11/LoopSource.h"

namespace quorvel::x11 {

// Work for later times, in the order of these times. Main thread only.
class TimerQueue : public LoopSource {
public:
    void addOnce(Clock::duration delay, std::function<void()> work);
    Subscription addRepeating(Clock::duration interval, std::function<void()> work);

private:
    struct Timer {
        std::function<void()> work;
        std::optional<Clock::duration> interval;
        bool isActive = true;
    };
    using Timers = std::multimap<Clock::time_point, std::shared_ptr<Timer>>;

    bool hasWork() override { return false; } // the loop keeps the time
    void dispatch() override;
    void add(Clock::time_point time, std::shared_ptr<Timer> timer);
    void remove(const std::shared_ptr<Timer>& timer);
    void arm();

    Timers timers;
};

} // namespace quorvel::x11
