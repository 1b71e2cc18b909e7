#include "platform/macos/NotificationTokens.h"

#include "platform/macos/Retained.h"

namespace quorvel::macos {

// A block would keep a reference as such, so the handler comes as a copy.
Subscription
observeNotification(NSNotificationCenter* center, NSString* name,
                    std::function<void(NSNotification*)> handler) // NOLINT(performance-unnecessary-value-param)
{
    @autoreleasepool {
        const id token = [center addObserverForName:name
                                             object:nil
                                              queue:nil
                                         usingBlock:^(NSNotification* notification) {
                                           handler(notification);
                                         }];
        return Subscription([center = Retained<NSNotificationCenter*>::retain(center),
                             token = Retained<id>::retain(token)] { [center.get() removeObserver:token.get()]; });
    }
}

} // namespace quorvel::macos
