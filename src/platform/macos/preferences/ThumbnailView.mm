#include "platform/macos/preferences/ThumbnailView.h"

#include "platform/macos/Retained.h"

using quorvel::macos::Retained;

namespace {

constexpr CGFloat roomForShadow = 2.0;
constexpr CGFloat cornerRadius = 6.0;
constexpr CGFloat shadowRadius = 1.0;
constexpr CGFloat shadowAlpha = 0.15;

} // namespace

@implementation QuorvelThumbnailView

+ (instancetype)thumbnailOfSize:(NSSize)size content:(const quorvel::DrawList&)content
{
    const NSRect frame = NSMakeRect(0.0, 0.0, size.width + 2.0 * roomForShadow, size.height + 2.0 * roomForShadow);
    QuorvelThumbnailView* const view = [[[self alloc] initWithFrame:frame] autorelease];
    [view setBoundsOrigin:NSMakePoint(-roomForShadow, -roomForShadow)];
    [view setContent:content];
    return view;
}

- (CGFloat)pictureWidth
{
    return [self bounds].size.width - 2.0 * roomForShadow;
}

- (void)drawRect:(NSRect)dirtyRect
{
    const NSRect picture = NSInsetRect([self bounds], roomForShadow, roomForShadow);
    NSBezierPath* const outline = [NSBezierPath bezierPathWithRoundedRect:NSInsetRect(picture, 0.5, 0.5)
                                                                  xRadius:cornerRadius
                                                                  yRadius:cornerRadius];
    [NSGraphicsContext saveGraphicsState];
    const auto shadow = Retained<NSShadow*>::adopt([[NSShadow alloc] init]);
    [shadow.get() setShadowColor:[NSColor colorWithSRGBRed:0.0 green:0.0 blue:0.0 alpha:shadowAlpha]];
    [shadow.get() setShadowBlurRadius:shadowRadius];
    [shadow.get() setShadowOffset:NSZeroSize];
    [shadow.get() set];
    [[NSColor blackColor] setFill];
    [outline fill];
    [NSGraphicsContext restoreGraphicsState];

    [NSGraphicsContext saveGraphicsState];
    [outline addClip];
    [super drawRect:dirtyRect];
    [NSGraphicsContext restoreGraphicsState];
    [[NSColor separatorColor] setStroke];
    [outline stroke];
}

@end
