#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "base/KeyCodeSet.h"
#include "base/Keys.h"

namespace quorvel {

enum class EventTapLocation { session };
enum class EventTapPlacement { headInsert };
enum class EventTapOptions { canDropEvents };

enum class TapEventType { keyDown, keyUp, flagsChanged, disabledByTimeout, disabledByUserInput, other };

// Bit of an event type in a tap's mask.
inline constexpr std::uint64_t keyDownEventMask = 1U << 10U;

struct EventTapDescription {
    EventTapLocation location = EventTapLocation::session;
    EventTapPlacement placement = EventTapPlacement::headInsert;
    EventTapOptions options = EventTapOptions::canDropEvents;
    std::uint64_t eventMask = 0;

    bool operator==(const EventTapDescription&) const = default;
};

// An event on its way to an application, valid during the callback's call.
class TapEvent {
public:
    TapEvent() = default;
    TapEvent(const TapEvent&) = delete;
    TapEvent& operator=(const TapEvent&) = delete;
    virtual ~TapEvent() = default;

    virtual TapEventType type() const = 0;
    virtual KeyCode keyCode() const = 0;

    // The event with its characters; costs a conversion, which may fail.
    virtual std::optional<KeyEvent> keyEvent() const = 0;
};

enum class TapDecision { pass, drop };

using EventTapCallback = std::function<TapDecision(const TapEvent&)>;

// Sees key-downs before applications do and may drop them. Destroying it ends it.
class EventTap {
public:
    EventTap() = default;
    EventTap(const EventTap&) = delete;
    EventTap& operator=(const EventTap&) = delete;
    virtual ~EventTap() = default;

    // Makes the source through which the main loop serves the tap; false if that fails.
    virtual bool createRunLoopSource() = 0;
    virtual void addSourceToRunLoop() = 0;
    virtual void removeSourceFromRunLoop() = 0;

    virtual void setEnabled(bool enabled) = 0;

    // Tells the tap which key-downs its callback is going to drop, with whatever modifiers; false if the tap cannot
    // get hold of them, after which it sees none. An empty set always succeeds.
    //
    // macOS: a tap sees every key in any case; always true.
    // X11: a tap sees only keys of this set. All 256 codes become one grab of the keyboard; a smaller set becomes
    // grabs of those keys. A key that is held when its grab would end stays grabbed until it is released, so that
    // its auto-repeat reaches nobody.
    virtual bool setKeysOfInterest(const KeyCodeSet& keyCodes) = 0;
};

class EventTaps {
public:
    EventTaps() = default;
    EventTaps(const EventTaps&) = delete;
    EventTaps& operator=(const EventTaps&) = delete;
    virtual ~EventTaps() = default;

    // A tap that does nothing until its source is in the main loop and it is enabled; null without the permission.
    // The callback runs from the main loop.
    virtual std::unique_ptr<EventTap> createTap(const EventTapDescription& description, EventTapCallback callback) = 0;
};

} // namespace quorvel
