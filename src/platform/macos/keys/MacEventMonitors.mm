#include "platform/macos/keys/MacEventMonitors.h"

#include <utility>

#import <AppKit/AppKit.h>

#include "platform/macos/Retained.h"
#include "platform/macos/keys/KeyEvents.h"

namespace quorvel::macos {

namespace {

Subscription keep(id monitor)
{
    return Subscription([monitor = Retained<id>::retain(monitor)] { [NSEvent removeMonitor:monitor.get()]; });
}

} // namespace

Subscription MacEventMonitors::addGlobalMouseDownMonitor(std::function<void()> handler)
{
    const auto presses = NSEventMaskLeftMouseDown | NSEventMaskRightMouseDown | NSEventMaskOtherMouseDown;
    return keep([NSEvent addGlobalMonitorForEventsMatchingMask:presses
                                                       handler:^(NSEvent*) {
                                                         const auto current = handler; // it may end its monitor
                                                         current();
                                                       }]);
}

Subscription MacEventMonitors::addLocalKeyDownMonitor(std::function<EventHandling(const KeyEvent&)> handler)
{
    return keep([NSEvent addLocalMonitorForEventsMatchingMask:NSEventMaskKeyDown
                                                      handler:^NSEvent*(NSEvent* event) {
                                                        const auto current = handler; // it may end its monitor
                                                        const auto handling = current(keyEvent(event));
                                                        return handling == EventHandling::pass ? event : nil;
                                                      }]);
}

} // namespace quorvel::macos
