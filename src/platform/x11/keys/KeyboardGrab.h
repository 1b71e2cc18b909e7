#pragma once

#include <xcb/xcb.h>

#include "base/WeakGuard.h"
#include "platform/x11/keys/KeyEvents.h"

namespace quorvel {
class MainQueue;
}

namespace quorvel::x11 {

class Connection;
class Keyboard;

// The whole keyboard, taken away from the applications for a while.
//
// Giving it back while a key is down would let the key's auto-repeat type into the focused window. So the keyboard is
// kept until the keys are up. The server stops it after each stroke until this program has seen to that one; so a
// further key that belongs to the application is not lost but handed on, and the keyboard with it. While a single key
// is grabbed and down, further keys are treated the same way.
//
//      free --take--> taken --release--> leaving --keys up, or a key for the application--> free
//                       ^------- take -----'
class KeyboardGrab {
public:
    KeyboardGrab(Connection& connection, const Keyboard& keyboard, KeyEvents& events, MainQueue& mainQueue);
    KeyboardGrab(const KeyboardGrab&) = delete;
    KeyboardGrab& operator=(const KeyboardGrab&) = delete;
    ~KeyboardGrab();

    // False if another program keeps the keyboard. Costs one round trip, or a few milliseconds before it fails.
    bool take();

    // Gives the keyboard back as soon as no key is down: at once if none is.
    void release();

    // The same in the loop's turn after the next, unless it is taken again before.
    void releaseSoon();

    // Gives it back whatever is down.
    void releaseAtOnce();

private:
    enum class Phase { free, taken, leaving };

    bool grab();
    std::uint8_t grabStatus(xcb_timestamp_t time);
    void follow(const KeyStroke& stroke, StrokeOutcome outcome);
    bool isFromBeforeGrab(const KeyStroke& stroke) const;
    void handOn();
    void allowNextStroke();
    void lookForLostReleases();
    void forgetReleasedKeys();

    Connection& connection;
    const Keyboard& keyboard;
    KeyEvents& events;
    MainQueue& mainQueue;
    Phase phase = Phase::free;
    std::uint32_t grabRequest = 0; // its number among the connection's requests
    bool isReleaseDue = false;
    bool isStrokeUndecided = false; // the keyboard has stopped after a key that the release would hand on
    bool isLooking = false;
    WeakGuard weakGuard;
};

} // namespace quorvel::x11
