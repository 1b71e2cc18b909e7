#import <AppKit/AppKit.h>

#include "macos/fakes/FakeDesktop.h"

using namespace quorvel;

namespace {

SimulatedScreens& connected()
{
    return fakes::FakeDesktop::current().desktop.screens;
}

NSRect nsRect(const ScreenRect& rect)
{
    return NSMakeRect(rect.x, rect.y, rect.width, rect.height);
}

NSScreen* object(const Screen& screen)
{
    NSScreen* const result = [[[NSScreen alloc] init] autorelease];
    [result setFrame:nsRect(screen.frame)];
    [result setVisibleFrame:nsRect(screen.visibleFrame)];
    [result setDeviceDescription:@{@"NSScreenNumber" : [NSNumber numberWithUnsignedLongLong:screen.id]}];
    return result;
}

} // namespace

@implementation NSScreen

@synthesize frame = _frame;
@synthesize visibleFrame = _visibleFrame;
@synthesize deviceDescription = _deviceDescription;

+ (NSArray*)screens
{
    NSMutableArray* const result = [NSMutableArray array];
    for (const auto& each : connected().screens()) {
        [result addObject:object(each)];
    }
    return result;
}

+ (NSScreen*)mainScreen
{
    const auto main = connected().mainScreen();
    return main ? object(*main) : nil;
}

- (void)dealloc
{
    [_deviceDescription release];
    [super dealloc];
}

@end
