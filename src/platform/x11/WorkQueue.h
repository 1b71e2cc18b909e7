#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>

#include "platform/x11/LoopSource.h"

namespace quorvel::x11 {

// Work for the loop's next turn, first come, first served.
class WorkQueue : public LoopSource {
public:
    // May be called from any thread.
    void add(std::function<void()> work);

private:
    struct Item {
        std::uint64_t number;
        std::function<void()> work;
    };

    bool hasWork() override;
    void dispatch() override;
    std::function<void()> takeBefore(std::uint64_t number);

    std::mutex mutex;
    std::deque<Item> items;
    std::uint64_t nextNumber = 0;
};

} // namespace quorvel::x11
