#pragma once

#include "platform/EventTaps.h"

namespace quorvel::x11 {

class X11EventTaps;

class X11EventTap final : public EventTap {
public:
    X11EventTap(X11EventTaps& owner, const EventTapDescription& description, EventTapCallback callback);
    X11EventTap(const X11EventTap&) = delete;
    X11EventTap& operator=(const X11EventTap&) = delete;
    ~X11EventTap() override;

    bool createRunLoopSource() override;
    void addSourceToRunLoop() override;
    void removeSourceFromRunLoop() override;
    void setEnabled(bool enabled) override;
    bool setKeysOfInterest(const KeyCodeSet& keyCodes) override;

    // The keys that the tap gets now: none unless it is enabled and its source is in the main loop.
    KeyCodeSet activeKeys() const;

    bool wants(KeyCode keyCode) const;

    TapDecision decide(const TapEvent& event) const;

private:
    bool isActive() const { return isInRunLoop && isEnabled; }
    void setActivity(bool inRunLoop, bool enabled);

    X11EventTaps& owner;
    EventTapDescription description;
    EventTapCallback callback;
    KeyCodeSet keyCodes;
    bool isInRunLoop = false;
    bool isEnabled = false;
};

} // namespace quorvel::x11
