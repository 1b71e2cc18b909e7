#include "platform/x11/windows/WindowManagerBarrier.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>
#include <vector>

#include "platform/x11/Connection.h"

namespace quorvel::x11 {

WindowManagerBarrier::WindowManagerBarrier(Connection& connection, WindowManager& windowManager)
    : connection(connection), windowManager(windowManager), window(xcb_generate_id(connection.xcb()))
{
    xcb_create_window(connection.xcb(), 0, window, connection.root(), lastPosition, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    selection = connection.selectEvents(window, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    answers = connection.addHandler<xcb_configure_notify_event_t>(XCB_CONFIGURE_NOTIFY, [this](const auto& event) {
        if (event.window == window) {
            handleAnswer(event.x);
        }
    });
}

WindowManagerBarrier::~WindowManagerBarrier()
{
    selection.reset();
    xcb_destroy_window(connection.xcb(), window);
}

bool WindowManagerBarrier::isSupported()
{
    const auto manager = windowManager.identity();
    return manager != 0 && manager != silentManager;
}

void WindowManagerBarrier::noteVainWait()
{
    if (askedManager != answeringManager) {
        silentManager = askedManager;
    }
}

// The window is never mapped, and each question takes it further to the left, so that answers can be told apart.
void WindowManagerBarrier::whenReached(std::function<void()> callback)
{
    const auto manager = windowManager.identity();
    if (std::exchange(askedManager, manager) != manager) {
        waiting.clear();
    }
    const bool isLeftmost = lastPosition == std::numeric_limits<std::int16_t>::min();
    lastPosition = isLeftmost ? std::int16_t{-1} : static_cast<std::int16_t>(lastPosition - 1);
    waiting.push_back({lastPosition, std::move(callback)});
    const auto x = static_cast<std::uint32_t>(std::int32_t{lastPosition});
    xcb_configure_window(connection.xcb(), window, XCB_CONFIG_WINDOW_X, &x);
    connection.flush();
}

void WindowManagerBarrier::handleAnswer(std::int16_t position)
{
    const auto answered = std::ranges::find(waiting, position, &Waiting::position);
    if (answered == waiting.end()) {
        return;
    }
    answeringManager = askedManager;
    silentManager = 0;
    std::vector<Waiting> reached(std::make_move_iterator(waiting.begin()),
                                 std::make_move_iterator(std::next(answered)));
    waiting.erase(waiting.begin(), std::next(answered));
    for (const auto& each : reached) {
        each.callback();
    }
}

} // namespace quorvel::x11
