#pragma once

#include <cstdint>
#include <deque>
#include <functional>

#include <xcb/xcb.h>

#include "base/Subscription.h"
#include "platform/x11/windows/WindowManager.h"

namespace quorvel::x11 {

class Connection;

// Tells when the window manager has carried out what it was asked to do. It takes messages one after the other, and the
// wish of a window that it does not manage to be somewhere else, which every window manager has to grant, is one of
// them: the window moves when all before it has been dealt with.
class WindowManagerBarrier {
public:
    WindowManagerBarrier(Connection& connection, WindowManager& windowManager);
    WindowManagerBarrier(const WindowManagerBarrier&) = delete;
    WindowManagerBarrier& operator=(const WindowManagerBarrier&) = delete;
    ~WindowManagerBarrier();

    // Whether there is a window manager, and it has not been found silent.
    bool isSupported();

    // It has been waited for in vain. One that never answered is not counted on, unless its answer comes yet.
    void noteVainWait();

    // Calls back from the main loop once everything sent so far has been carried out; never if the window manager
    // goes before that.
    void whenReached(std::function<void()> callback);

private:
    struct Waiting {
        std::int16_t position;
        std::function<void()> callback;
    };

    void handleAnswer(std::int16_t position);

    Connection& connection;
    WindowManager& windowManager;
    xcb_window_t window;
    std::int16_t lastPosition = -1;
    WindowManager::Identity askedManager = 0;
    WindowManager::Identity answeringManager = 0;
    WindowManager::Identity silentManager = 0;
    std::deque<Waiting> waiting; // answers come in the order of the questions
    Subscription selection;
    Subscription answers;
};

} // namespace quorvel::x11
