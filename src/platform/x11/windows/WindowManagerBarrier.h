#pragma once

#include <deque>
#include <functional>

#include <xcb/xcb.h>

#include "base/Subscription.h"
#include "platform/x11/windows/WindowManager.h"

namespace quorvel::x11 {

class Connection;

// Tells when the window manager has carried out what it was asked to do. It takes messages one after the other, and one
// of them has a visible answer even for a window that it does not manage: what frame that window would get.
class WindowManagerBarrier {
public:
    WindowManagerBarrier(Connection& connection, WindowManager& windowManager);
    WindowManagerBarrier(const WindowManagerBarrier&) = delete;
    WindowManagerBarrier& operator=(const WindowManagerBarrier&) = delete;
    ~WindowManagerBarrier();

    // Whether the present window manager says that it answers, and has not been found silent.
    bool isSupported();

    // It has been waited for in vain. Some only say that they answer; one that never did is not asked again, unless its
    // answer comes yet.
    void noteVainWait();

    // Calls back from the main loop once everything sent so far has been carried out; never if the window manager
    // goes before that.
    void whenReached(std::function<void()> callback);

private:
    void handleAnswer();

    Connection& connection;
    WindowManager& windowManager;
    xcb_window_t window;
    WindowManager::Identity askedManager = 0;
    WindowManager::Identity answeringManager = 0;
    WindowManager::Identity silentManager = 0;
    std::deque<std::function<void()>> waiting; // answers come in the order of the questions
    Subscription selection;
    Subscription answers;
};

} // namespace quorvel::x11
