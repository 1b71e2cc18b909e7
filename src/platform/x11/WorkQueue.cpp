#include "platform/x11/WorkQueue.h"

#include <utility>

namespace quorvel::x11 {

void WorkQueue::add(std::function<void()> work)
{
    {
        const std::lock_guard lock(mutex);
        items.push_back({nextNumber++, std::move(work)});
    }
    wake();
}

bool WorkQueue::hasWork()
{
    const std::lock_guard lock(mutex);
    return !items.empty();
}

// What is added meanwhile waits for the next turn, so that work that adds work keeps nobody else waiting.
void WorkQueue::dispatch()
{
    std::uint64_t end = 0;
    {
        const std::lock_guard lock(mutex);
        end = nextNumber;
    }
    while (const auto work = takeBefore(end)) {
        work();
    }
}

std::function<void()> WorkQueue::takeBefore(std::uint64_t number)
{
    const std::lock_guard lock(mutex);
    if (items.empty() || items.front().number >= number) {
        return nullptr;
    }
    auto work = std::move(items.front().work);
    items.pop_front();
    return work;
}

} // namespace quorvel::x11
