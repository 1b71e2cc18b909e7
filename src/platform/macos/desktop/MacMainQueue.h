#pragma once

#include "platform/MainQueue.h"

namespace quorvel::macos {

// The dispatch queue of the main thread, which also turns while a menu is open or an alert is shown.
class MacMainQueue final : public MainQueue {
public:
    void async(std::function<void()> work) override;
    void after(std::chrono::duration<double> delay, std::function<void()> work) override;
    Subscription repeat(std::chrono::duration<double> interval, std::function<void()> work) override;
    bool isMainThread() const override;
};

} // namespace quorvel::macos
