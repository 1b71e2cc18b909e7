#pragma once

#import <AppKit/AppKit.h>

#include "base/DrawList.h"

// Shows a draw list, and takes no clicks.
@interface QuorvelDrawListView : NSView {
    quorvel::DrawList content;
}

- (void)setContent:(const quorvel::DrawList&)newContent;

@end
