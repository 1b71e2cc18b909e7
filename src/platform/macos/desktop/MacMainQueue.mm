#include "platform/macos/desktop/MacMainQueue.h"

#include <memory>
#include <utility>

#import <Foundation/Foundation.h>
#include <dispatch/dispatch.h>

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

void MacMainQueue::async(std::function<void()> work)
{
    dispatch_async(dispatch_get_main_queue(), ^{
      work();
    });
}

void MacMainQueue::after(std::chrono::duration<double> delay, std::function<void()> work)
{
    const auto nanoseconds = std::chrono::duration_cast<std::chrono::nanoseconds>(delay).count();
    dispatch_after(dispatch_time(DISPATCH_TIME_NOW, nanoseconds), dispatch_get_main_queue(), ^{
      work();
    });
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
