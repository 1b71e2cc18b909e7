#pragma once

#include <memory>

#include "platform/MainQueue.h"

namespace quorvel::macos {

// The run loop of the main thread, in its common modes: while a menu is open or an alert is shown, too, even if a piece
// of work shows it. The system's dispatch queue of the main thread stands still then.
class MacMainQueue final : public MainQueue {
public:
    MacMainQueue();

    void async(std::function<void()> work) override;
    void after(std::chrono::duration<double> delay, std::function<void()> work) override;
    Subscription repeat(std::chrono::duration<double> interval, std::function<void()> work) override;
    bool isMainThread() const override;

private:
    class Waiting;

    std::shared_ptr<Waiting> waiting;
};

} // namespace quorvel::macos
