#include "platform/simulated/SimulatedMainQueue.h"

#include <algorithm>

#include "base/FatalError.h"
#include "platform/simulated/Journal.h"

namespace quorvel {

namespace {

constexpr int mostTurnsOfADrain = 10'000;

} // namespace

SimulatedMainQueue::SimulatedMainQueue(Journal& journal) : journal(journal) {}

SimulatedMainQueue::~SimulatedMainQueue() = default;

void SimulatedMainQueue::async(std::function<void()> work)
{
    add(Seconds(0.0), std::move(work));
}

void SimulatedMainQueue::after(std::chrono::duration<double> delay, std::function<void()> work)
{
    journal.record("MainQueue.after({})", delay.count());
    add(delay, std::move(work));
}

Subscription SimulatedMainQueue::repeat(std::chrono::duration<double> interval, std::function<void()> work)
{
    journal.record("MainQueue.repeat({})", interval.count());
    if (interval <= Seconds(0.0)) {
        fatalError("A repeated piece of work needs an interval above 0");
    }
    auto token = std::make_shared<const int>(0);
    runRepeatedly(interval, std::make_shared<const std::function<void()>>(std::move(work)), token);
    return Subscription([token = std::move(token)]() mutable { token.reset(); });
}

void SimulatedMainQueue::runRepeatedly(Seconds interval, const std::shared_ptr<const std::function<void()>>& work,
                                       const std::weak_ptr<const int>& token)
{
    add(interval, [this, interval, work, token] {
        if (token.expired()) {
            return;
        }
        runRepeatedly(interval, work, token);
        (*work)();
    });
}

bool SimulatedMainQueue::isMainThread() const
{
    return std::this_thread::get_id() == mainThread;
}

std::size_t SimulatedMainQueue::turn()
{
    const auto end = [this] {
        const std::lock_guard lock(mutex);
        return nextSequence;
    }();
    std::size_t count = 0;
    while (const auto work = takeDue(end)) {
        (*work)();
        ++count;
    }
    return count;
}

void SimulatedMainQueue::drain()
{
    for (int turns = 0; turn() > 0; ++turns) {
        if (turns == mostTurnsOfADrain) {
            fatalError("The main queue never comes to rest");
        }
    }
}

void SimulatedMainQueue::advance(Seconds duration)
{
    const auto end = clock + duration;
    drain();
    for (auto due = nextDue(); due && *due <= end; due = nextDue()) {
        clock = *due;
        drain();
    }
    clock = end;
}

bool SimulatedMainQueue::advanceToNext()
{
    const auto due = nextDue();
    if (!due) {
        return false;
    }
    clock = std::max(clock, *due);
    turn();
    return true;
}

void SimulatedMainQueue::discard()
{
    // What the work owns may add work as it goes, so it goes outside the lock.
    for (auto dropped = takeAll(); !dropped.empty(); dropped = takeAll()) {
        dropped.clear();
    }
}

std::size_t SimulatedMainQueue::pendingCount() const
{
    const std::lock_guard lock(mutex);
    return pending.size();
}

std::optional<SimulatedMainQueue::Seconds> SimulatedMainQueue::nextDue() const
{
    const std::lock_guard lock(mutex);
    return pending.empty() ? std::nullopt : std::optional(pending.begin()->first.first);
}

void SimulatedMainQueue::add(Seconds delay, std::function<void()> work)
{
    const std::lock_guard lock(mutex);
    pending.emplace(Key{clock + std::max(delay, Seconds(0.0)), nextSequence++}, std::move(work));
}

std::map<SimulatedMainQueue::Key, std::function<void()>> SimulatedMainQueue::takeAll()
{
    const std::lock_guard lock(mutex);
    return std::exchange(pending, {});
}

std::optional<std::function<void()>> SimulatedMainQueue::takeDue(std::uint64_t addedBefore)
{
    const std::lock_guard lock(mutex);
    for (auto entry = pending.begin(); entry != pending.end() && entry->first.first <= clock; ++entry) {
        if (entry->first.second < addedBefore) {
            return std::move(pending.extract(entry).mapped());
        }
    }
    return std::nullopt;
}

} // namespace quorvel
