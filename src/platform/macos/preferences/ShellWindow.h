#pragma once

#include <functional>

#import <AppKit/AppKit.h>

// A window in which Escape does what it is told to.
@interface QuorvelShellWindow : NSWindow {
    std::function<void()> escape;
}

- (void)setEscape:(std::function<void()>)newEscape;

@end
