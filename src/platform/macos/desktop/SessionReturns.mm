#include "platform/macos/desktop/SessionReturns.h"

#import <AppKit/AppKit.h>

#include "platform/macos/NotificationTokens.h"

namespace quorvel::macos {

std::vector<Subscription> observeSessionReturns(const std::function<void()>& returned)
{
    NSNotificationCenter* const center = [[NSWorkspace sharedWorkspace] notificationCenter];
    std::vector<Subscription> tokens;
    for (NSString* name in @[ NSWorkspaceDidWakeNotification, NSWorkspaceSessionDidBecomeActiveNotification ]) {
        tokens.push_back(observeNotification(center, name, [returned](NSNotification*) { returned(); }));
    }
    return tokens;
}

} // namespace quorvel::macos
