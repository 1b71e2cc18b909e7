#include "platform/x11/TimerQueue.h"

#include <utility>

namespace quorvel::x11 {

void TimerQueue::addOnce(Clock::duration delay, std::function<void()> work)
{
    add(Clock::now() + delay, std::make_shared<Timer>(std::move(work), std::nullopt));
}

Subscription TimerQueue::addRepeating(Clock::duration interval, std::function<void()> work)
{
    auto timer = std::make_shared<Timer>(std::move(work), interval);
    add(Clock::now() + interval, timer);
    return Subscription([this, timer = std::move(timer)] { remove(timer); });
}

void TimerQueue::add(Clock::time_point time, std::shared_ptr<Timer> timer)
{
    timers.emplace(time, std::move(timer));
    arm();
}

void TimerQueue::remove(const std::shared_ptr<Timer>& timer)
{
    timer->isActive = false;
    std::erase_if(timers, [&](const auto& entry) { return entry.second == timer; });
    arm();
}

void TimerQueue::dispatch()
{
    const auto now = Clock::now();
    while (!timers.empty() && timers.begin()->first <= now) {
        const auto [time, timer] = *timers.begin();
        timers.erase(timers.begin());
        if (timer->interval) {
            const auto next = time + *timer->interval;
            timers.emplace(next > now ? next : now + *timer->interval, timer); // after a busy while none is made up for
        }
        arm();
        timer->work();
    }
    arm();
}

void TimerQueue::arm()
{
    dispatchAt(timers.empty() ? std::nullopt : std::optional(timers.begin()->first));
}

} // namespace quorvel::x11
