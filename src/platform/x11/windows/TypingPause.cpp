#include "platform/x11/windows/TypingPause.h"

#include <chrono>
#include <memory>
#include <utility>

#include <xcb/xcb.h>

#include "platform/MainQueue.h"
#include "platform/x11/Connection.h"
#include "platform/x11/windows/WindowManagerBarrier.h"

namespace quorvel::x11 {

namespace {

using namespace std::chrono_literals;

// A window manager that hangs must not take the keyboard from everybody.
constexpr auto longestPause = 200ms;

} // namespace

TypingPause::TypingPause(Connection& connection, MainQueue& mainQueue, WindowManagerBarrier& barrier)
    : connection(connection), mainQueue(mainQueue), barrier(barrier)
{}

TypingPause::~TypingPause()
{
    keepers.clear();
    end();
}

Subscription TypingPause::keepFocus(std::function<void()> takeBack)
{
    keepers.push_back(std::make_shared<const std::function<void()>>(std::move(takeBack)));
    return Subscription(weakGuard.guard([this, keeper = keepers.back()] { std::erase(keepers, keeper); }));
}

void TypingPause::beginIfFocusIsKept()
{
    if (!keepers.empty()) {
        begin();
    }
}

// A keyboard that is grabbed synchronously stops; what it had to say is said once it is given back, as if it had not
// been grabbed.
void TypingPause::begin()
{
    if (!std::exchange(isPausing, true)) {
        auto* const link = connection.xcb();
        const auto cookie =
            xcb_grab_keyboard(link, 0, connection.root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_SYNC);
        xcb_discard_reply(link, cookie.sequence);
        connection.flush();
    }
    const auto awaited = ++begun;
    mainQueue.async(weakGuard.guard([this, awaited] { endLater(awaited); }));
}

void TypingPause::afterEarlierRequests(std::function<void()> callback)
{
    barrier.whenReached(std::move(callback));
}

void TypingPause::endLater(std::uint64_t awaited)
{
    const auto endIfLast = weakGuard.guard([this, awaited] {
        if (awaited == begun) {
            end();
        }
    });
    barrier.whenReached(endIfLast);
    mainQueue.after(longestPause, endIfLast);
}

void TypingPause::end()
{
    if (!std::exchange(isPausing, false)) {
        return;
    }
    for (const auto& takeBack : std::vector(keepers)) {
        (*takeBack)();
    }
    xcb_ungrab_keyboard(connection.xcb(), XCB_CURRENT_TIME);
    connection.flush();
}

} // namespace quorvel::x11
