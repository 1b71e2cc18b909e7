#pragma once

#include <functional>
#include <vector>

#include <xcb/xcb.h>

#include "base/Signal.h"
#include "platform/EventMonitors.h"
#include "platform/x11/keys/KeyMapping.h"

namespace quorvel::x11 {

class Connection;
class Keyboard;

// Mouse presses as raw events of the X Input extension, which no other program's grab holds back; key-downs as events
// of this program's own windows.
class X11EventMonitors final : public EventMonitors {
public:
    X11EventMonitors(Connection& connection, const Keyboard& keyboard);
    ~X11EventMonitors() override;

    Subscription addGlobalMouseDownMonitor(std::function<void()> handler) override;
    Subscription addLocalKeyDownMonitor(std::function<EventHandling(const KeyEvent&)> handler) override;

    // Tells the monitors of a key-down in a window of this program that lives on another connection, such as a
    // toolkit's, and answers what is to become of it.
    EventHandling reportLocalKeyDown(xcb_keycode_t keycode, KeyState state) const;

private:
    void handleGenericEvent(const xcb_ge_generic_event_t& event);
    void handleKeyPress(const xcb_key_press_event_t& event);
    void selectRawPresses(std::uint32_t mask);
    bool isPointerOverOwnWindow() const;
    bool isOwnWindow(xcb_window_t window) const;

    Connection& connection;
    const Keyboard& keyboard;
    std::uint8_t inputOpcode = 0; // of the X Input extension; 0 where the server lacks it
    Signal<> mouseMonitors;
    Signal<const KeyEvent&, EventHandling&> keyMonitors;
    std::vector<Subscription> subscriptions;
};

} // namespace quorvel::x11
