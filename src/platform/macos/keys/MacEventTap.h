#pragma once

#include <CoreGraphics/CoreGraphics.h>

#include "platform/EventTaps.h"
#include "platform/macos/CfRef.h"

namespace quorvel::macos {

class MacEventTap final : public EventTap {
public:
    MacEventTap(const EventTapDescription& description, EventTapCallback callback);
    MacEventTap(const MacEventTap&) = delete;
    MacEventTap& operator=(const MacEventTap&) = delete;
    ~MacEventTap() override;

    // False where the system refused it, for want of a permission.
    bool exists() const { return static_cast<bool>(port); }

    bool createRunLoopSource() override;
    void addSourceToRunLoop() override;
    void removeSourceFromRunLoop() override;
    void setEnabled(bool enabled) override;
    bool setKeysOfInterest(const KeyCodeSet& keyCodes) override;

private:
    static CGEventRef seen(CGEventTapProxy proxy, CGEventType type, CGEventRef event, void* context);

    EventTapCallback callback;
    CfRef<CFMachPortRef> port;
    CfRef<CFRunLoopSourceRef> source;
};

} // namespace quorvel::macos
