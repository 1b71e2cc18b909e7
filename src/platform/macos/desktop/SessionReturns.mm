#include "platform/macos/desktop/SessionReturns.h"

#import <AppKit/AppKit.h>

namespace quorvel::macos {

namespace {

NSNotificationCenter* center()
{
    return [[NSWorkspace sharedWorkspace] notificationCenter];
}

} // namespace

SessionReturns::SessionReturns(std::function<void()> returned)
{
    for (NSString* name in @[ NSWorkspaceDidWakeNotification, NSWorkspaceSessionDidBecomeActiveNotification ]) {
        observers.push_back(Retained<id>::retain([center() addObserverForName:name
                                                                       object:nil
                                                                        queue:nil
                                                                   usingBlock:^(NSNotification*) {
                                                                     returned();
                                                                   }]));
    }
}

SessionReturns::~SessionReturns()
{
    for (const auto& observer : observers) {
        [center() removeObserver:observer.get()];
    }
}

} // namespace quorvel::macos
