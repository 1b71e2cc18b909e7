#pragma once

#include <functional>

#import <AppKit/AppKit.h>

// A table that offers its keys to somebody else first.
@interface QuorvelLayoutTableView : NSTableView {
    std::function<bool(NSEvent*)> keyDown;
}

// Returns whether the key is dealt with.
- (void)setKeyDown:(std::function<bool(NSEvent*)>)newKeyDown;

@end
