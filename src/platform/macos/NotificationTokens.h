#pragma once

#include <functional>

#import <Foundation/Foundation.h>

#include "base/Subscription.h"

namespace quorvel::macos {

// Calls `handler` with each notification of that name, in the thread and the moment of its posting, until the token
// goes.
Subscription observeNotification(NSNotificationCenter* center, NSString* name,
                                 std::function<void(NSNotification*)> handler);

} // namespace quorvel::macos
