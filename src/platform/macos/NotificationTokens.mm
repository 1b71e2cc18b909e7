#include "platform/macos/NotificationTokens.h"

#include "platform/macos/Retained.h"

namespace quorvel::macos {

Subscription observeNotification(NSNotificationCenter* center, NSString* name,
                                 std::function<void(NSNotification*)> handler)
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
