#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "platform/EventTaps.h"
#include "platform/simulated/SimulatedEventTap.h"

namespace quorvel {

class Journal;
class SimulatedMainQueue;
class SimulatedPermissions;

class SimulatedEventTaps final : public EventTaps {
public:
    // Which keys a tap sees: X11 shows it the keys of its interest, macOS every key.
    enum class Visibility { keysOfInterest, everyKey };

    // What a tap said to an event.
    struct Decision {
        TapEventType type = TapEventType::keyDown;
        KeyCode keyCode = 0;
        TapDecision decision = TapDecision::pass;

        bool operator==(const Decision&) const = default;
    };

    SimulatedEventTaps(Journal& journal, SimulatedMainQueue& mainQueue, SimulatedPermissions& permissions);
    ~SimulatedEventTaps() override;

    std::unique_ptr<EventTap> createTap(const EventTapDescription& description, EventTapCallback callback) override;

    // The taps that exist, the newest, which sees events first, first.
    std::vector<std::shared_ptr<const SimulatedEventTap::Registration>> taps() const;
    const std::vector<Decision>& decisions() const { return made; }

    // Shows the event to the taps, now. Drop as soon as one drops it.
    TapDecision offer(TapEventType type, const KeyEvent& event);

    // Shows the taps an event of whatever type, later. The types that tell of a disabling disable the taps first.
    void send(TapEventType type, KeyCode keyCode);

    Visibility visibility = Visibility::keysOfInterest;

    void refuseTaps() { tapsRefused = true; }
    void refuseSources() { sourcesRefused = true; }
    void refuseKeys() { keysRefused = true; }
    // Events cannot be converted into key events.
    void refuseConversions() { conversionsRefused = true; }
    // Ends all of the above.
    void behave();

    bool refusesSources() const { return sourcesRefused; }
    bool refusesKeys() const { return keysRefused; }

private:
    using Registration = SimulatedEventTap::Registration;

    std::vector<std::shared_ptr<Registration>> current() const;
    bool sees(const Registration& tap, TapEventType type, KeyCode keyCode) const;
    TapDecision ask(const Registration& tap, TapEventType type, const KeyEvent& event);

    Journal& journal;
    SimulatedMainQueue& mainQueue;
    SimulatedPermissions& permissions;
    std::vector<std::weak_ptr<Registration>> registrations; // in order of creation
    std::vector<Decision> made;
    bool tapsRefused = false;
    bool sourcesRefused = false;
    bool keysRefused = false;
    bool conversionsRefused = false;
};

} // namespace quorvel
