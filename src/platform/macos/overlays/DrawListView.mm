#include "platform/macos/overlays/DrawListView.h"

#include <algorithm>

#include "platform/macos/overlays/DrawListPainting.h"

@implementation QuorvelDrawListView

- (instancetype)initWithFrame:(NSRect)frame
{
    self = [super initWithFrame:frame];
    [self setWantsLayer:YES];
    [self setClipsToBounds:YES];
    return self;
}

- (void)setContent:(const quorvel::DrawList&)newContent
{
    content = newContent;
    [self setNeedsDisplay:YES];
}

- (BOOL)isFlipped
{
    return YES;
}

- (BOOL)isOpaque
{
    return NO;
}

- (NSView*)hitTest:(NSPoint)point
{
    return nil;
}

- (void)drawRect:(NSRect)dirtyRect
{
    quorvel::macos::paint(content, std::max([[self window] backingScaleFactor], 1.0));
}

// A display of another scale has other pixels to align with.
- (void)viewDidChangeBackingProperties
{
    [super viewDidChangeBackingProperties];
    [self setNeedsDisplay:YES];
}

@end
