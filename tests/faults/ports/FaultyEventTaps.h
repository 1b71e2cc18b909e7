#pragma once

#include <memory>
#include <utility>

#include "platform/EventTaps.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

class FaultyTapEvent final : public TapEvent {
public:
    FaultyTapEvent(const TapEvent& real, PortFaults& faults) : real(real), faults(faults) {}

    TapEventType type() const override { return real.type(); }
    KeyCode keyCode() const override { return real.keyCode(); }

    std::optional<KeyEvent> keyEvent() const override
    {
        return faults.attempt("TapEvent.keyEvent", [&] { return real.keyEvent(); }, std::nullopt);
    }

private:
    const TapEvent& real;
    PortFaults& faults;
};

class FaultyEventTap final : public EventTap {
public:
    FaultyEventTap(std::unique_ptr<EventTap> real, PortFaults& faults) : real(std::move(real)), faults(faults) {}

    bool createRunLoopSource() override
    {
        return faults.attempt("EventTap.createRunLoopSource", [&] { return real->createRunLoopSource(); }, false);
    }

    void addSourceToRunLoop() override
    {
        faults.attemptEffect("EventTap.addSourceToRunLoop", [&] { real->addSourceToRunLoop(); });
    }

    void removeSourceFromRunLoop() override
    {
        faults.attemptEffect("EventTap.removeSourceFromRunLoop", [&] { real->removeSourceFromRunLoop(); });
    }

    void setEnabled(bool enabled) override
    {
        faults.attemptEffect("EventTap.setEnabled", [&] { real->setEnabled(enabled); });
    }

    bool setKeysOfInterest(const KeyCodeSet& keyCodes) override
    {
        if (keyCodes.empty()) { // which always succeeds
            return real->setKeysOfInterest(keyCodes);
        }
        const bool fails = faults.next("EventTap.setKeysOfInterest", 1).has_value();
        // A tap that cannot get hold of its keys sees none.
        return real->setKeysOfInterest(fails ? KeyCodeSet() : keyCodes) && !fails;
    }

private:
    std::unique_ptr<EventTap> real;
    PortFaults& faults;
};

class FaultyEventTaps final : public EventTaps {
public:
    FaultyEventTaps(EventTaps& real, PortFaults& faults) : real(real), faults(faults) {}

    std::unique_ptr<EventTap> createTap(const EventTapDescription& description, EventTapCallback callback) override
    {
        return faults.attempt(
            "EventTaps.createTap",
            [&]() -> std::unique_ptr<EventTap> {
                auto tap = real.createTap(description, [this, callback = std::move(callback)](const TapEvent& event) {
                    return callback(FaultyTapEvent(event, faults));
                });
                return tap ? std::make_unique<FaultyEventTap>(std::move(tap), faults) : nullptr;
            },
            nullptr);
    }

private:
    EventTaps& real;
    PortFaults& faults;
};

} // namespace quorvel
