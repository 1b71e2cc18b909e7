#include "platform/x11/windows/Activation.h"

#include <algorithm>
#include <memory>

#include "platform/x11/Connection.h"
#include "platform/x11/Precedence.h"
#include "platform/x11/windows/ClientWindows.h"
#include "platform/x11/windows/TypingPause.h"
#include "platform/x11/windows/WindowManager.h"
#include "platform/x11/windows/WindowManagerBarrier.h"

namespace quorvel::x11 {

namespace {

bool isForPeople(const WindowSnapshot& window)
{
    return window.identity.kind != WindowKind::dock && window.identity.kind != WindowKind::desktop;
}

} // namespace

Activation::Activation(Connection& connection, ClientWindows& windows, WindowManager& windowManager,
                       TypingPause& typingPause, Precedence& precedence, WindowManagerBarrier& barrier)
    : connection(connection),
      windows(windows),
      windowManager(windowManager),
      typingPause(typingPause),
      precedence(precedence),
      barrier(barrier),
      activeWindowChanges(
          connection.addHandler<xcb_property_notify_event_t>(XCB_PROPERTY_NOTIFY, [this](const auto& event) {
              if (event.window == this->connection.root() && event.atom == this->connection.atoms().netActiveWindow) {
                  lastRaised = XCB_NONE;
              }
          }))
{}

// Some window managers refuse to activate a window of another desktop, so that the desktop comes first.
void Activation::raise(xcb_window_t window)
{
    const auto* const snapshot = windows.find(window);
    if (snapshot == nullptr) {
        return;
    }
    typingPause.beginIfFocusIsKept();
    if (!windows.isOnCurrentDesktop(*snapshot)) {
        windowManager.showDesktop(snapshot->desktop);
    }
    windowManager.activate(window);
    lastRaised = window;
    takePrecedence();
}

// Until the window manager has dealt with what it was asked, and then with the change of the focus that it brought
// about by that.
void Activation::takePrecedence()
{
    if (barrier.isSupported()) {
        const auto claim = std::make_shared<Subscription>(precedence.claim());
        barrier.whenReached([&barrier = barrier, claim] { barrier.whenReached([claim] { claim->reset(); }); });
    }
}

void Activation::activate(ProcessId process)
{
    if (const auto window = frontWindow(process); window != XCB_NONE) {
        raise(window);
    }
}

xcb_window_t Activation::frontWindow(ProcessId process)
{
    if (const auto* const raised = windows.find(lastRaised); raised != nullptr && raised->identity.process == process) {
        return lastRaised;
    }
    const auto own = windows.windowsOf(process);
    const auto front = std::ranges::find_if(own, [this](xcb_window_t window) {
        const auto* const snapshot = windows.find(window);
        return snapshot != nullptr && isForPeople(*snapshot);
    });
    return front != own.end() ? *front : XCB_NONE;
}

} // namespace quorvel::x11
