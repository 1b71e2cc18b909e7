#include <memory>

#import <AppKit/AppKit.h>
#include <CoreGraphics/CoreGraphics.h>

#include "macos/fakes/FakeDesktop.h"
#import "macos/fakes/KeyEventObject.h"
#import "macos/fakes/RunLoopSource.h"

using namespace quorvel;
using fakes::as;
using fakes::FakeDesktop;

struct FakeCGEvent {
    const TapEvent& event;
};

// The port of an event tap.
@interface QuorvelEventTap : QuorvelFakeObject {
@public
    std::unique_ptr<EventTap> tap; // null once it is invalid
}
@end

@implementation QuorvelEventTap

- (void)dealloc
{
    if (tap) {
        fakes::complain("An event tap went without being invalidated; the system would keep it");
    }
    [super dealloc];
}

@end

@interface QuorvelEventTapSource : QuorvelRunLoopSource {
@public
    QuorvelEventTap* port;
}
@end

@implementation QuorvelEventTapSource

- (void)dealloc
{
    [port release];
    [super dealloc];
}

- (void)modeDidChange
{
    if (port->tap == nullptr) {
        return;
    }
    if ([[self mode] isEqual:as<NSString*>(kCFRunLoopCommonModes)]) {
        port->tap->addSourceToRunLoop();
    } else {
        port->tap->removeSourceFromRunLoop();
    }
}

@end

namespace {

CGEventType nativeType(TapEventType type)
{
    switch (type) {
    case TapEventType::keyDown:
        return kCGEventKeyDown;
    case TapEventType::keyUp:
        return kCGEventKeyUp;
    case TapEventType::flagsChanged:
        return kCGEventFlagsChanged;
    case TapEventType::disabledByTimeout:
        return kCGEventTapDisabledByTimeout;
    case TapEventType::disabledByUserInput:
        return kCGEventTapDisabledByUserInput;
    case TapEventType::other:
        break;
    }
    return kCGEventLeftMouseDown;
}

} // namespace

extern "C" {

CFMachPortRef CGEventTapCreate(CGEventTapLocation location, CGEventTapPlacement placement, CGEventTapOptions options,
                               CGEventMask mask, CGEventTapCallBack callback, void* context)
{
    if (location != kCGSessionEventTap || placement != kCGHeadInsertEventTap || options != kCGEventTapOptionDefault) {
        fakes::complain("An event tap in another place than at the head of the session, or one that only listens");
    }
    auto tap = FakeDesktop::current().desktop.eventTaps.createTap(
        {.eventMask = mask}, [callback, context](const TapEvent& event) {
            FakeCGEvent native{event};
            return callback(nullptr, nativeType(event.type()), &native, context) == nullptr ? TapDecision::drop
                                                                                            : TapDecision::pass;
        });
    if (!tap) {
        return nullptr;
    }
    tap->setEnabled(true); // as the system does
    fakes::ownReferences(1);
    QuorvelEventTap* const port = [[QuorvelEventTap alloc] init];
    port->tap = std::move(tap);
    return reinterpret_cast<CFMachPortRef>(port);
}

void CGEventTapEnable(CFMachPortRef port, bool enable)
{
    if (const auto& tap = as<QuorvelEventTap*>(port)->tap) {
        tap->setEnabled(enable);
    }
}

CFRunLoopSourceRef CFMachPortCreateRunLoopSource(CFAllocatorRef, CFMachPortRef reference, CFIndex)
{
    QuorvelEventTap* const port = as<QuorvelEventTap*>(reference);
    if (!port->tap->createRunLoopSource()) {
        return nullptr;
    }
    fakes::ownReferences(1);
    QuorvelEventTapSource* const source = [[QuorvelEventTapSource alloc] init];
    source->port = [port retain];
    return reinterpret_cast<CFRunLoopSourceRef>(source);
}

void CFMachPortInvalidate(CFMachPortRef port)
{
    as<QuorvelEventTap*>(port)->tap.reset();
}

std::int64_t CGEventGetIntegerValueField(CGEventRef event, CGEventField field)
{
    return field == kCGKeyboardEventKeycode ? event->event.keyCode() : 0;
}
}

@implementation NSEvent (FromTaps)

+ (NSEvent*)eventWithCGEvent:(CGEventRef)event
{
    const auto key = event->event.keyEvent();
    return key ? fakes::keyDown(*key) : nil;
}

@end
