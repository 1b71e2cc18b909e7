#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

#include "platform/MainQueue.h"

namespace quorvel {

class Journal;

// A main queue whose loop turns, and whose clock goes on, only when told to.
class SimulatedMainQueue final : public MainQueue {
public:
    using Seconds = std::chrono::duration<double>;

    explicit SimulatedMainQueue(Journal& journal);
    ~SimulatedMainQueue() override;

    void async(std::function<void()> work) override;
    void after(std::chrono::duration<double> delay, std::function<void()> work) override;
    Subscription repeat(std::chrono::duration<double> interval, std::function<void()> work) override;
    bool isMainThread() const override;

    // Runs what waits now, but not what this adds. Returns how many pieces of work ran.
    std::size_t turn();

    // Turns until nothing is due. Work that keeps adding work ends the program.
    void drain();

    // Lets time pass, with everything that falls due on the way.
    void advance(Seconds duration);

    // Lets time pass until the next work falls due, and runs what is due then; false if none waits.
    bool advanceToNext();

    // Drops everything that waits.
    void discard();

    Seconds now() const { return clock; }

    // Work that waits, due or not.
    std::size_t pendingCount() const;

private:
    using Key = std::pair<Seconds, std::uint64_t>; // when it is due, and the order of adding

    std::optional<Seconds> nextDue() const;
    void add(Seconds delay, std::function<void()> work);
    std::map<Key, std::function<void()>> takeAll();
    std::optional<std::function<void()>> takeDue(std::uint64_t addedBefore);
    void runRepeatedly(Seconds interval, const std::shared_ptr<const std::function<void()>>& work,
                       const std::weak_ptr<const int>& token);

    Journal& journal;
    const std::thread::id mainThread = std::this_thread::get_id();
    mutable std::mutex mutex;
    std::map<Key, std::function<void()>> pending;
    std::uint64_t nextSequence = 0;
    Seconds clock{0.0};
};

} // namespace quorvel
