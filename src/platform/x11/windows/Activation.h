#pragma once

#include <xcb/xcb.h>

#include "base/Subscription.h"
#include "platform/ProcessId.h"

namespace quorvel::x11 {

class ClientWindows;
class Connection;
class Precedence;
class TypingPause;
class WindowManager;
class WindowManagerBarrier;

// Brings windows and applications forward.
class Activation {
public:
    Activation(Connection& connection, ClientWindows& windows, WindowManager& windowManager, TypingPause& typingPause,
               Precedence& precedence, WindowManagerBarrier& barrier);

    // Raises the window and gives it the keyboard, on whatever desktop it is.
    void raise(xcb_window_t window);

    // The same for the front window of a process. A window of it that was raised last is its front window, even while
    // the window manager has not got round to raising it. Ignored for a process without windows.
    void activate(ProcessId process);

private:
    void takePrecedence();
    xcb_window_t frontWindow(ProcessId process);

    Connection& connection;
    ClientWindows& windows;
    WindowManager& windowManager;
    TypingPause& typingPause;
    Precedence& precedence;
    WindowManagerBarrier& barrier;
    xcb_window_t lastRaised = XCB_NONE; // until another window becomes active
    Subscription activeWindowChanges;
};

} // namespace quorvel::x11
