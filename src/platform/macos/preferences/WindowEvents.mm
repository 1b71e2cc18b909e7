#include "platform/macos/preferences/WindowEvents.h"

#include <utility>

@implementation QuorvelWindowEvents

- (void)setBecameKey:(std::function<void()>)newBecameKey willClose:(std::function<void()>)newWillClose
{
    becameKey = std::move(newBecameKey);
    willClose = std::move(newWillClose);
}

- (void)windowDidBecomeKey:(NSNotification*)notification
{
    becameKey();
}

- (void)windowWillClose:(NSNotification*)notification
{
    willClose();
}

@end
