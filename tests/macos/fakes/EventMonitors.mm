#import <AppKit/AppKit.h>

#include "base/Subscription.h"
#include "macos/fakes/FakeDesktop.h"
#import "macos/fakes/FakeObject.h"
#import "macos/fakes/KeyEventObject.h"
#include "platform/macos/Retained.h"

using namespace quorvel;

// What +[NSEvent addLocalMonitorForEventsMatchingMask:handler:] and its sibling answer.
@interface QuorvelEventMonitor : QuorvelFakeObject {
@public
    Subscription registration;
}
@end

@implementation QuorvelEventMonitor
@end

namespace {

SimulatedEventMonitors& monitors()
{
    return fakes::FakeDesktop::current().desktop.eventMonitors;
}

// The system keeps a monitor until it is removed.
id keep(Subscription registration)
{
    QuorvelEventMonitor* const monitor = [[QuorvelEventMonitor alloc] init];
    monitor->registration = std::move(registration);
    return monitor;
}

} // namespace

@implementation NSEvent (Monitors)

+ (id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask handler:(NSEvent* (^)(NSEvent*))handler
{
    if (mask != NSEventMaskKeyDown) {
        fakes::complain("A local monitor of other events than key-downs");
    }
    return keep(
        monitors().addLocalKeyDownMonitor([handler = macos::Retained<id>::adopt([handler copy])](const KeyEvent& key) {
            const auto call = static_cast<NSEvent* (^)(NSEvent*)>(handler.get());
            return call(fakes::keyDown(key)) != nil ? EventHandling::pass : EventHandling::swallow;
        }));
}

+ (id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask handler:(void (^)(NSEvent*))handler
{
    if (mask != (NSEventMaskLeftMouseDown | NSEventMaskRightMouseDown | NSEventMaskOtherMouseDown)) {
        fakes::complain("A global monitor of other events than presses of a mouse button");
    }
    return keep(monitors().addGlobalMouseDownMonitor([handler = macos::Retained<id>::adopt([handler copy])] {
        const auto call = static_cast<void (^)(NSEvent*)>(handler.get());
        call(nil);
    }));
}

+ (void)removeMonitor:(id)monitor
{
    static_cast<QuorvelEventMonitor*>(monitor)->registration.reset();
    [monitor release];
}

@end
