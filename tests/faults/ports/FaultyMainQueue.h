#pragma once

#include <utility>

#include "platform/MainQueue.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

// Work that fails is lost.
class FaultyMainQueue final : public MainQueue {
public:
    FaultyMainQueue(MainQueue& real, PortFaults& faults) : real(real), faults(faults) {}

    void async(std::function<void()> work) override
    {
        faults.attemptEffect("MainQueue.async", [&] { real.async(std::move(work)); });
    }

    void after(std::chrono::duration<double> delay, std::function<void()> work) override
    {
        faults.attemptEffect("MainQueue.after", [&] { real.after(delay, std::move(work)); });
    }

    Subscription repeat(std::chrono::duration<double> interval, std::function<void()> work) override
    {
        return faults.attempt(
            "MainQueue.repeat", [&] { return real.repeat(interval, std::move(work)); }, Subscription());
    }

    bool isMainThread() const override { return real.isMainThread(); }

private:
    MainQueue& real;
    PortFaults& faults;
};

} // namespace quorvel
