#pragma once

#include <vector>

#include "base/Subscription.h"
#include "platform/EventTaps.h"
#include "platform/x11/keys/KeyEvents.h"
#include "platform/x11/keys/KeyGrabs.h"

namespace quorvel::x11 {

class Keyboard;
class KeyboardGrab;
class X11EventTap;

// Taps as grabs: an X client sees only those keys of others that it has grabbed, and what it has grabbed it cannot let
// pass. So the keys that the taps are going to drop decide what is grabbed.
class X11EventTaps final : public EventTaps {
public:
    X11EventTaps(Keyboard& keyboard, KeyGrabs& grabs, KeyboardGrab& keyboardGrab, KeyEvents& events);
    X11EventTaps(const X11EventTaps&) = delete;
    X11EventTaps& operator=(const X11EventTaps&) = delete;
    ~X11EventTaps() override;

    std::unique_ptr<EventTap> createTap(const EventTapDescription& description, EventTapCallback callback) override;

private:
    friend class X11EventTap;

    enum class Farewell { whenKeysAreUp, soon, atOnce };

    KeyCodeSet keysOfInterest() const;
    bool grabKeysOfInterest(Farewell farewell);
    bool grabWholeKeyboard();
    bool grabKeys(const KeyCodeSet& keyCodes);
    void giveBackKeyboard(Farewell farewell);
    KeyGrabs::Combinations combinationsOf(const KeyCodeSet& keyCodes) const;
    StrokeOutcome handlePress(const KeyStroke& stroke);
    void remove(const X11EventTap& tap);

    Keyboard& keyboard;
    KeyGrabs& grabs;
    KeyboardGrab& keyboardGrab;
    KeyEvents& events;
    std::vector<X11EventTap*> taps; // the latest first: it sees keys before the others
    KeyGrabs::Combinations taken;
    Subscription mappingSubscription;
};

} // namespace quorvel::x11
