#include "platform/x11/windows/WindowManagerBarrier.h"

#include <utility>

#include "platform/x11/Connection.h"

namespace quorvel::x11 {

WindowManagerBarrier::WindowManagerBarrier(Connection& connection, WindowManager& windowManager)
    : connection(connection), windowManager(windowManager), window(xcb_generate_id(connection.xcb()))
{
    xcb_create_window(connection.xcb(), 0, window, connection.root(), -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    selection = connection.selectEvents(window, XCB_EVENT_MASK_PROPERTY_CHANGE);
    answers = connection.addHandler<xcb_property_notify_event_t>(XCB_PROPERTY_NOTIFY, [this](const auto& event) {
        if (event.window == window && event.atom == this->connection.atoms().netFrameExtents) {
            handleAnswer();
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
    return manager != 0 && manager != silentManager &&
           windowManager.supports(connection.atoms().netRequestFrameExtents);
}

void WindowManagerBarrier::noteVainWait()
{
    if (askedManager != answeringManager) {
        silentManager = askedManager;
    }
}

void WindowManagerBarrier::whenReached(std::function<void()> callback)
{
    const auto manager = windowManager.identity();
    if (std::exchange(askedManager, manager) != manager) {
        waiting.clear();
    }
    waiting.push_back(std::move(callback));
    windowManager.requestFrameExtents(window);
}

void WindowManagerBarrier::handleAnswer()
{
    if (waiting.empty()) {
        return;
    }
    answeringManager = askedManager;
    silentManager = 0;
    const auto callback = std::move(waiting.front());
    waiting.pop_front();
    callback();
}

} // namespace quorvel::x11
