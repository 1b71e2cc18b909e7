#include "platform/x11/Precedence.h"

#include <chrono>
#include <utility>

#include "platform/MainQueue.h"

namespace quorvel::x11 {

namespace {

constexpr std::chrono::milliseconds longestWait(16);

} // namespace

Subscription Precedence::claim()
{
    ++claims;
    return Subscription(weakGuard.guard([this] {
        if (--claims == 0) {
            reviewSoon();
        }
    }));
}

void Precedence::afterwards(std::function<void()> work)
{
    waiting.push_back(std::move(work));
    if (waiting.size() == 1) {
        reviewSoon();
    }
}

void Precedence::reviewSoon()
{
    if (!waiting.empty()) {
        mainQueue.async(weakGuard.guard([this] { review(); }));
    }
}

void Precedence::review()
{
    if (waiting.empty()) {
        return;
    }
    if (claims == 0) {
        run();
    } else if (!std::exchange(hasLimit, true)) {
        mainQueue.after(longestWait, weakGuard.guard([this, limited = batch] {
            if (limited == batch) {
                run();
            }
        }));
    }
}

void Precedence::run()
{
    ++batch;
    hasLimit = false;
    for (const auto& work : std::exchange(waiting, {})) {
        work();
    }
}

} // namespace quorvel::x11
