#include "platform/macos/keys/MacEventTap.h"

#include <utility>

#import <AppKit/AppKit.h>

#include "platform/macos/keys/KeyEvents.h"

namespace quorvel::macos {

namespace {

TapEventType eventType(CGEventType type)
{
    switch (type) {
    case kCGEventKeyDown:
        return TapEventType::keyDown;
    case kCGEventKeyUp:
        return TapEventType::keyUp;
    case kCGEventFlagsChanged:
        return TapEventType::flagsChanged;
    case kCGEventTapDisabledByTimeout:
        return TapEventType::disabledByTimeout;
    case kCGEventTapDisabledByUserInput:
        return TapEventType::disabledByUserInput;
    default:
        return TapEventType::other;
    }
}

class MacTapEvent final : public TapEvent {
public:
    MacTapEvent(CGEventType kind, CGEventRef event) : kind(kind), event(event) {}

    TapEventType type() const override { return eventType(kind); }

    KeyCode keyCode() const override
    {
        return static_cast<KeyCode>(CGEventGetIntegerValueField(event, kCGKeyboardEventKeycode));
    }

    std::optional<KeyEvent> keyEvent() const override
    {
        @autoreleasepool {
            NSEvent* const converted = [NSEvent eventWithCGEvent:event];
            return converted != nil ? std::optional(macos::keyEvent(converted)) : std::nullopt;
        }
    }

private:
    CGEventType kind;
    CGEventRef event;
};

CGEventTapLocation location(EventTapLocation location)
{
    switch (location) {
    case EventTapLocation::session:
        break;
    }
    return kCGSessionEventTap;
}

CGEventTapPlacement placement(EventTapPlacement placement)
{
    switch (placement) {
    case EventTapPlacement::headInsert:
        break;
    }
    return kCGHeadInsertEventTap;
}

CGEventTapOptions options(EventTapOptions options)
{
    switch (options) {
    case EventTapOptions::canDropEvents:
        break;
    }
    return kCGEventTapOptionDefault;
}

} // namespace

MacEventTap::MacEventTap(const EventTapDescription& description, EventTapCallback callback)
    : callback(std::move(callback)),
      port(CfRef<CFMachPortRef>::adopt(CGEventTapCreate(location(description.location),
                                                        placement(description.placement), options(description.options),
                                                        description.eventMask, &MacEventTap::seen, this)))
{
    setEnabled(false); // it comes enabled, and would hold up every key until somebody serves it
}

MacEventTap::~MacEventTap()
{
    if (port) {
        setEnabled(false);
        removeSourceFromRunLoop();
        CFMachPortInvalidate(port.get());
    }
}

bool MacEventTap::createRunLoopSource()
{
    source = CfRef<CFRunLoopSourceRef>::adopt(CFMachPortCreateRunLoopSource(kCFAllocatorDefault, port.get(), 0));
    return static_cast<bool>(source);
}

void MacEventTap::addSourceToRunLoop()
{
    CFRunLoopAddSource(CFRunLoopGetMain(), source.get(), kCFRunLoopCommonModes);
}

void MacEventTap::removeSourceFromRunLoop()
{
    if (source) {
        CFRunLoopRemoveSource(CFRunLoopGetMain(), source.get(), kCFRunLoopCommonModes);
    }
}

void MacEventTap::setEnabled(bool enabled)
{
    if (port) {
        CGEventTapEnable(port.get(), enabled);
    }
}

bool MacEventTap::setKeysOfInterest(const KeyCodeSet&)
{
    return true;
}

CGEventRef MacEventTap::seen(CGEventTapProxy, CGEventType type, CGEventRef event, void* context)
{
    const auto decision = static_cast<MacEventTap*>(context)->callback(MacTapEvent(type, event));
    return decision == TapDecision::drop ? nullptr : event;
}

} // namespace quorvel::macos
