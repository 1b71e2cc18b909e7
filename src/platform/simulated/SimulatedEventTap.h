#pragma once

#include <memory>

#include "platform/EventTaps.h"

namespace quorvel {

class Journal;
class SimulatedEventTaps;

class SimulatedEventTap final : public EventTap {
public:
    // What the event service keeps of a tap.
    struct Registration {
        EventTapDescription description;
        EventTapCallback callback;
        KeyCodeSet keysOfInterest;
        bool hasSource = false;
        bool isInRunLoop = false;
        bool isEnabled = false;
    };

    SimulatedEventTap(Journal& journal, const SimulatedEventTaps& eventTaps,
                      std::shared_ptr<Registration> registration);
    SimulatedEventTap(const SimulatedEventTap&) = delete;
    SimulatedEventTap& operator=(const SimulatedEventTap&) = delete;
    ~SimulatedEventTap() override;

    bool createRunLoopSource() override;
    void addSourceToRunLoop() override;
    void removeSourceFromRunLoop() override;
    void setEnabled(bool enabled) override;
    bool setKeysOfInterest(const KeyCodeSet& keyCodes) override;

private:
    Journal& journal;
    const SimulatedEventTaps& eventTaps;
    std::shared_ptr<Registration> registration;
};

} // namespace quorvel
