#pragma once

#include <chrono>
#include <functional>

#include "base/Subscription.h"

namespace quorvel {

// The main thread's queue. Work runs on the main thread, in a later turn of its loop, never inside the call that adds
// it; work of equal time runs in the order in which it was added.
class MainQueue {
public:
    MainQueue() = default;
    MainQueue(const MainQueue&) = delete;
    MainQueue& operator=(const MainQueue&) = delete;
    virtual ~MainQueue() = default;

    // Runs `work` once, as soon as the loop turns. May be called from any thread.
    virtual void async(std::function<void()> work) = 0;

    // Runs `work` once, not before `delay` has passed.
    virtual void after(std::chrono::duration<double> delay, std::function<void()> work) = 0;

    // Runs `work` every `interval` until the token goes; the first time after one interval.
    virtual Subscription repeat(std::chrono::duration<double> interval, std::function<void()> work) = 0;

    virtual bool isMainThread() const = 0;
};

} // namespace quorvel
