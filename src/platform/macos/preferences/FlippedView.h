#pragma once

#include <functional>

#import <AppKit/AppKit.h>

// A view whose coordinates begin at the top, and which tells when it has got another size.
@interface QuorvelFlippedView : NSView {
    std::function<void()> resized;
    NSSize knownSize;
}

- (void)setResized:(std::function<void()>)newResized;

@end
