#pragma once

#include <functional>

#import <AppKit/AppKit.h>

// Hears what becomes of a window.
@interface QuorvelWindowEvents : NSObject <NSWindowDelegate> {
    std::function<void()> becameKey;
    std::function<void()> willClose;
}

- (void)setBecameKey:(std::function<void()>)newBecameKey willClose:(std::function<void()>)newWillClose;

@end
