#pragma once

#import <AppKit/AppKit.h>

#include "platform/macos/Retained.h"

namespace quorvel::macos {

// Scrolls the view up and down, with no ground of its own.
inline Retained<NSScrollView*> createScrollView(NSView* content)
{
    auto scroll = Retained<NSScrollView*>::adopt([[NSScrollView alloc] initWithFrame:NSZeroRect]);
    [scroll.get() setBorderType:NSNoBorder];
    [scroll.get() setDrawsBackground:NO];
    [scroll.get() setHasVerticalScroller:YES];
    [scroll.get() setAutohidesScrollers:YES];
    [scroll.get() setDocumentView:content];
    return scroll;
}

} // namespace quorvel::macos
