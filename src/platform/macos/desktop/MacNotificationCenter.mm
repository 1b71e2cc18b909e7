#include "platform/macos/desktop/MacNotificationCenter.h"

#include <utility>

#import <Foundation/Foundation.h>

#include "platform/macos/NotificationTokens.h"
#include "platform/macos/Strings.h"

namespace quorvel::macos {

namespace {

// The program's objects are numbers, which the system cannot hold as objects.
NSString* const objectKey = @"object";

NotificationObject objectOf(NSNotification* notification)
{
    NSNumber* const number = [[notification userInfo] objectForKey:objectKey];
    return number != nil ? [number unsignedLongLongValue] : reinterpret_cast<NotificationObject>([notification object]);
}

} // namespace

void MacNotificationCenter::post(std::string_view name, NotificationObject object)
{
    @autoreleasepool {
        NSNumber* const number = [NSNumber numberWithUnsignedLongLong:object];
        [[NSNotificationCenter defaultCenter] postNotificationName:nsString(name)
                                                            object:nil
                                                          userInfo:@{objectKey : number}];
    }
}

Subscription MacNotificationCenter::observe(std::string_view name, NotificationObject object,
                                            std::function<void()> handler)
{
    if (!heard.contains(name)) {
        heard.emplace(name, observeNotification([NSNotificationCenter defaultCenter], nsString(name),
                                                [this, name = std::string(name)](NSNotification* notification) {
                                                    local.post(name, objectOf(notification));
                                                }));
    }
    return local.observe(name, object, std::move(handler));
}

} // namespace quorvel::macos
