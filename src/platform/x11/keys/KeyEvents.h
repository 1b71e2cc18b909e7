#pragma once

#include <functional>
#include <map>
#include <set>
#include <vector>

#include <xcb/xcb.h>

#include "base/Subscription.h"
#include "platform/x11/keys/KeyMapping.h"

namespace quorvel::x11 {

class Connection;
class Keyboard;

// A key that a grab brought here.
struct KeyStroke {
    enum class Kind { press, autoRepeat, release };

    Kind kind = Kind::press;
    xcb_keycode_t keycode = 0;
    KeyState state = 0;
    xcb_timestamp_t time = XCB_CURRENT_TIME;
    std::uint32_t request = 0; // the number of the connection's latest request before it
};

enum class StrokeOutcome { taken, untaken };

// Leads the keys that grabs bring to this program to those who want them, one after the other.
class KeyEvents {
public:
    using PressHandler = std::function<StrokeOutcome(const KeyStroke&)>;
    using Follower = std::function<void(const KeyStroke&, StrokeOutcome)>;

    KeyEvents(Connection& connection, const Keyboard& keyboard);

    // Presses go to the hot keys first, and if they do not take them, to the taps. Auto-repeats follow their press:
    // those of a hot key go to nobody, even when its modifiers are up by then, and all others to the taps. Modifiers go
    // to neither.
    void setHotKeyHandler(PressHandler handler) { hotKeyHandler = std::move(handler); }
    void setTapHandler(PressHandler handler) { tapHandler = std::move(handler); }

    // Hears of every stroke after that.
    void setFollower(Follower handler) { follower = std::move(handler); }

    // The server's time of the latest stroke, or XCB_CURRENT_TIME.
    xcb_timestamp_t latestTime() const { return latest; }

    // The keys that went down here and have not been released yet, modifiers left out.
    std::set<xcb_keycode_t> heldKeys() const;
    void forget(xcb_keycode_t keycode) { held.erase(keycode); }
    void forgetHeldKeys() { held.clear(); }

private:
    struct HeldKey {
        xcb_timestamp_t time = XCB_CURRENT_TIME; // of the latest press or repeat
        bool isHotKey = false;
    };

    void handlePress(const xcb_key_press_event_t& event);
    void handleRelease(const xcb_key_release_event_t& event);
    StrokeOutcome lead(const KeyStroke& stroke);
    StrokeOutcome offerToHotKeys(const KeyStroke& stroke);
    KeyStroke::Kind notePress(const xcb_key_press_event_t& event);

    Connection& connection;
    const Keyboard& keyboard;
    PressHandler hotKeyHandler;
    PressHandler tapHandler;
    Follower follower;
    std::map<xcb_keycode_t, HeldKey> held;
    xcb_timestamp_t latest = XCB_CURRENT_TIME;
    std::vector<Subscription> subscriptions;
};

} // namespace quorvel::x11
