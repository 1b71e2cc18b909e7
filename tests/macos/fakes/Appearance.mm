#import <AppKit/AppKit.h>

#include "macos/fakes/FakeDesktop.h"
#include "platform/macos/Colors.h"

using namespace quorvel;

namespace {

SimulatedSystemColors& colors()
{
    return fakes::FakeDesktop::current().desktop.systemColors;
}

} // namespace

@implementation NSAppearance (Drawing)

- (void)performAsCurrentDrawingAppearance:(void (^)(void))work
{
    work();
}

@end

@implementation NSApplication (Appearance)

- (NSAppearance*)effectiveAppearance
{
    return [[[NSAppearance alloc] init] autorelease];
}

@end

@implementation NSColor (Accent)

+ (NSColor*)controlAccentColor
{
    return macos::nsColor(colors().accent());
}

+ (NSColor*)systemBlueColor
{
    return macos::nsColor(colors().blue());
}

+ (NSColor*)systemGreenColor
{
    return macos::nsColor(colors().green());
}

+ (NSColor*)systemYellowColor
{
    return macos::nsColor(colors().yellow());
}

@end

// No picture is read; its name is enough.
@interface QuorvelImage : NSImage {
@public
    NSString* resource;
    BOOL isTemplate;
}
@end

@implementation QuorvelImage

- (void)dealloc
{
    [resource release];
    [super dealloc];
}

- (NSString*)name
{
    return resource;
}

- (BOOL)isTemplate
{
    return isTemplate;
}

- (void)setTemplate:(BOOL)newIsTemplate
{
    isTemplate = newIsTemplate;
}

@end

@implementation NSBundle (Images)

- (NSImage*)imageForResource:(NSString*)name
{
    if ([self pathForImageResource:name] == nil) {
        return nil;
    }
    QuorvelImage* const image = [[[QuorvelImage alloc] initWithSize:NSMakeSize(18.0, 18.0)] autorelease];
    image->resource = [name copy];
    return image;
}

@end
