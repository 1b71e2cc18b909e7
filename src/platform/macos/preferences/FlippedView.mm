#include "platform/macos/preferences/FlippedView.h"

#include <utility>

@implementation QuorvelFlippedView

- (void)setResized:(std::function<void()>)newResized
{
    resized = std::move(newResized);
}

- (BOOL)isFlipped
{
    return YES;
}

// Which of the next two is called depends on who gives the view its size.
- (void)setFrameSize:(NSSize)size
{
    [super setFrameSize:size];
    [self tellOfSize];
}

- (void)resizeSubviewsWithOldSize:(NSSize)oldSize
{
    [super resizeSubviewsWithOldSize:oldSize];
    [self tellOfSize];
}

- (void)tellOfSize
{
    const NSSize size = [self frame].size;
    if (!NSEqualSizes(size, knownSize)) {
        knownSize = size;
        if (resized) {
            resized();
        }
    }
}

@end
