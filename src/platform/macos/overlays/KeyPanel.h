#pragma once

#include <functional>

#import <AppKit/AppKit.h>

#include "base/Keys.h"

// A panel that can have the keyboard though it has no title. Its key-downs go to the handler and no further, so that
// the system does not beep at them.
@interface QuorvelKeyPanel : NSPanel {
    std::function<void(const quorvel::KeyEvent&)> onKeyDown;
}

- (void)setOnKeyDown:(std::function<void(const quorvel::KeyEvent&)>)newOnKeyDown;

@end
