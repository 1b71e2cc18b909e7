#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <xcb/xcb.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include "latency/TopLevels.h"
#include "report/Series.h"
#include "support/PixelRect.h"
#include "support/XReply.h"
#include "support/XServer.h"

namespace quorvel::bench {

// A combination to press: the modifiers' keysyms, then the key's.
struct Chord {
    std::vector<xcb_keysym_t> modifiers;
    xcb_keysym_t key = XKB_KEY_NoSymbol;
};

// Times what other clients do after a key press, seen from outside. Between the press and the end of a measurement it
// only reads events, so that the server works for nobody but the measured program.
class EventProbe {
public:
    explicit EventProbe(const xtest::XServer& server);
    EventProbe(const EventProbe&) = delete;
    EventProbe& operator=(const EventProbe&) = delete;
    ~EventProbe();

    xcb_connection_t* connection() const { return xcb; }
    xcb_window_t root() const { return screen->root; }

    // Presses the chord and waits until at least `windowCount` more top-level windows are visible and painting in their
    // area has come to rest: the time of the last painting. Nothing when that does not happen.
    std::optional<Milliseconds> pressUntilPainted(const Chord& chord, std::size_t windowCount);

    // Presses the chord and waits until the top-level window has that frame.
    std::optional<Milliseconds> pressUntilPlaced(const Chord& chord, xcb_window_t topLevel,
                                                 const xtest::PixelRect& frame);

    // Presses the chord and waits until another window than before is the active one.
    std::optional<Milliseconds> pressUntilOtherActive(const Chord& chord);

    // Presses the chord and waits until no more than `windowCount` top-level windows are visible, for getting back to
    // the state before a measurement; false when that does not happen.
    bool pressUntilVisible(const Chord& chord, std::size_t windowCount);

    std::size_t visibleCount() const { return topLevels.visibleCount(); }

    // The child of the root that holds the window.
    xcb_window_t topLevelOf(xcb_window_t window) const;

    xtest::PixelRect frameOf(xcb_window_t topLevel) const { return topLevels.frameOf(topLevel); }
    xcb_window_t activeWindow() const;

    // Waits until no event has arrived for a while.
    void rest();

    // Waits until the condition, asked again and again, holds; false after a minute.
    bool waitFor(const std::function<bool()>& condition);

    bool hasSelectionOwner(const std::string& selection) const;

    // Whether a program awaits presses of the key with Super.
    bool isHotKey(xcb_keysym_t key);

private:
    using Clock = std::chrono::steady_clock;

    Clock::time_point press(const Chord& chord);
    void release(const Chord& chord);
    void fakeKey(std::uint8_t type, xcb_keysym_t keysym);
    std::uint8_t codeOf(xcb_keysym_t keysym);
    xcb_atom_t atom(const std::string& name) const;
    void sync() const;

    // Reads events until `done` holds or time is up, calling `observe` with each; true when it held.
    bool readEvents(Clock::time_point deadline, const std::function<bool()>& done,
                    const std::function<void(const xcb_generic_event_t&, Clock::time_point)>& observe);

    xcb_connection_t* xcb = nullptr;
    const xcb_screen_t* screen = nullptr;
    std::uint8_t damageEvent = 0;
    TopLevels topLevels;
    std::map<xcb_keysym_t, std::uint8_t> keyCodes;
};

} // namespace quorvel::bench
