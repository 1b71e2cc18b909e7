#include "platform/macos/desktop/MacMainQueue.h"

#include <deque>
#include <memory>
#include <mutex>
#include <utility>

#import <Foundation/Foundation.h>

#include "platform/macos/CfRef.h"

namespace quorvel::macos {

namespace {

// A piece of work that runs again and again while somebody keeps it.
class Repetition : public std::enable_shared_from_this<Repetition> {
public:
    Repetition(MainQueue& queue, std::chrono::duration<double> interval, std::function<void()> work)
        : queue(queue), interval(interval), work(std::move(work))
    {}

    void wait()
    {
        queue.after(interval, [weak = weak_from_this()] {
            if (const auto self = weak.lock()) {
                self->wait();
                self->work();
            }
        });
    }

private:
    MainQueue& queue;
    std::chrono::duration<double> interval;
    std::function<void()> work;
};

} // namespace

// What waits, in order. The run loop gets one block for each piece of work, and serves some of them all at once, in
// which a loop inside the first would hold up the others; so each block takes what is first by then.
class MacMainQueue::Waiting : public std::enable_shared_from_this<Waiting> {
public:
    void add(std::function<void()> work)
    {
        {
            const std::lock_guard lock(mutex);
            all.push_back(std::move(work));
        }
        callRunLoop();
    }

private:
    void callRunLoop()
    {
        const auto self = shared_from_this();
        CFRunLoopPerformBlock(CFRunLoopGetMain(), kCFRunLoopCommonModes, ^{
          self->serve();
        });
        CFRunLoopWakeUp(CFRunLoopGetMain());
    }

    void serve()
    {
        auto [work, isLast] = take();
        if (!isLast) {
            callRunLoop(); // for a loop inside the work
        }
        if (work) {
            @autoreleasepool {
                work();
            }
        }
    }

    std::pair<std::function<void()>, bool> take()
    {
        const std::lock_guard lock(mutex);
        if (all.empty()) {
            return {nullptr, true};
        }
        auto first = std::move(all.front());
        all.pop_front();
        return {std::move(first), all.empty()};
    }

    std::mutex mutex;
    std::deque<std::function<void()>> all;
};

MacMainQueue::MacMainQueue() : waiting(std::make_shared<Waiting>()) {}

void MacMainQueue::async(std::function<void()> work)
{
    waiting->add(std::move(work));
}

void MacMainQueue::after(std::chrono::duration<double> delay, std::function<void()> work)
{
    const auto timer = CfRef<CFRunLoopTimerRef>::adopt(CFRunLoopTimerCreateWithHandler(
        kCFAllocatorDefault, CFAbsoluteTimeGetCurrent() + delay.count(), 0.0, 0, 0, ^(CFRunLoopTimerRef) {
          @autoreleasepool {
              work();
          }
        }));
    CFRunLoopAddTimer(CFRunLoopGetMain(), timer.get(), kCFRunLoopCommonModes); // which keeps it until it has fired
}

Subscription MacMainQueue::repeat(std::chrono::duration<double> interval, std::function<void()> work)
{
    auto repetition = std::make_shared<Repetition>(*this, interval, std::move(work));
    repetition->wait();
    return Subscription([repetition = std::move(repetition)]() mutable { repetition.reset(); });
}

bool MacMainQueue::isMainThread() const
{
    return [NSThread isMainThread];
}

} // namespace quorvel::macos
