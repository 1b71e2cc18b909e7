#include "macos/fakes/DisplayServer.h"

#include <cstdlib>

#import <AppKit/AppKit.h>
#import <GNUstepGUI/GSDisplayServer.h>

#include "macos/fakes/FakeDesktop.h"
#include "macos/fakes/WindowMirror.h"

using namespace quorvel;

extern "C" BOOL initialize_gnustep_backend();

// GNUstep's way to a display. What is drawn is not kept.
@interface FakeDisplayServer : GSDisplayServer {
    int _lastWindow;
}
@end

namespace {

// GNUstep has some windows of its own, such as the icon of the application.
fakes::WindowMirror* mirror(int number)
{
    NSWindow* const window = GSWindowWithNumber(number);
    constexpr NSUInteger ownStyles = NSIconWindowMask | NSMiniWindowMask;
    return window == nil || ([window styleMask] & ownStyles) != 0 ? nullptr : &fakes::mirrorOf(window);
}

void tell(int number, int subtype, NSPoint origin, CGFloat one, CGFloat other)
{
    [GSWindowWithNumber(number) sendEvent:[NSEvent otherEventWithType:NSAppKitDefined
                                                             location:origin
                                                        modifierFlags:0
                                                            timestamp:0.0
                                                         windowNumber:number
                                                              context:nil
                                                              subtype:static_cast<short>(subtype)
                                                                data1:static_cast<NSInteger>(one)
                                                                data2:static_cast<NSInteger>(other)]];
}

// Otherwise GNUstep would ask what to do, and wait for an answer.
void stop(NSException* exception)
{
    NSLog(@"%@: %@", [exception name], [exception reason]);
    std::abort();
}

} // namespace

@implementation FakeDisplayServer

- (BOOL)handlesWindowDecorations
{
    return YES;
}

- (NSArray*)screenList
{
    return @[ [NSNumber numberWithInt:0] ];
}

- (NSRect)boundsForScreen:(int)screen
{
    return NSMakeRect(0.0, 0.0, 1440.0, 900.0);
}

- (NSSize)resolutionForScreen:(int)screen
{
    return NSMakeSize(72.0, 72.0);
}

- (NSWindowDepth)windowDepthForScreen:(int)screen
{
    return NSBestDepth(NSDeviceRGBColorSpace, 8, 32, NO, nullptr);
}

- (int)window:(NSRect)frame:(NSBackingStoreType)type:(unsigned int)style:(int)screen
{
    [self _setWindowOwnedByServer:++_lastWindow];
    return _lastWindow;
}

- (void)termwindow:(int)number
{
    fakes::forgetMirror(GSWindowWithNumber(number));
}

- (void)orderwindow:(int)place:(int)other:(int)number
{
    auto* const window = mirror(number);
    if (window == nullptr) {
        return;
    }
    window->frame = [GSWindowWithNumber(number) frame];
    if (place == NSWindowOut) {
        window->hide();
    } else {
        window->show();
    }
}

- (void)placewindow:(NSRect)frame:(int)number
{
    if (auto* const window = mirror(number)) {
        window->place(frame);
    }
    tell(number, GSAppKitWindowMoved, frame.origin, frame.origin.x, frame.origin.y);
    tell(number, GSAppKitWindowResized, frame.origin, frame.size.width, frame.size.height);
}

- (NSRect)windowbounds:(int)number
{
    const auto* const window = mirror(number);
    return window == nullptr ? NSZeroRect : window->frame;
}

- (void)setinputfocus:(int)number
{
    if (auto* const window = mirror(number)) {
        window->makeKey();
    }
}

- (void)styleoffsets:(float*)left:(float*)right:(float*)top:(float*)bottom:(unsigned int)style
{
    *left = *right = *top = *bottom = 0.0F;
}

- (NSSize)iconSize
{
    return NSMakeSize(64.0, 64.0);
}

- (NSPoint)mouselocation
{
    return NSZeroPoint;
}

- (NSPoint)mouseLocationOnScreen:(int)screen window:(int*)window
{
    return NSZeroPoint;
}

- (void)standardcursor:(int)style:(void**)cursor
{
    *cursor = nullptr;
}

// What nobody sees.
- (void)stylewindow:(unsigned int)style:(int)number
{}
- (void)windowbacking:(NSBackingStoreType)type:(int)number
{}
- (void)titlewindow:(NSString*)title:(int)number
{}
- (void)setwindowlevel:(int)level:(int)number
{}
- (void)setmaxsize:(NSSize)size:(int)number
{}
- (void)setminsize:(NSSize)size:(int)number
{}
- (void)setresizeincrements:(NSSize)size:(int)number
{}
- (void)setinputstate:(int)state:(int)number
{}
- (void)setalpha:(float)alpha:(int)number
{}
- (void)setShadow:(BOOL)hasShadow:(int)number
{}
- (void)setIgnoreMouse:(BOOL)ignores:(int)number
{}
- (void)docedited:(int)edited:(int)number
{}
- (void)flushwindowrect:(NSRect)rect:(int)number
{}
- (void)setWindowdevice:(int)number forContext:(NSGraphicsContext*)context
{}
- (void)setParentWindow:(int)parent forChildWindow:(int)child
{}
- (void)setcursor:(void*)cursor
{}
- (void)imagecursor:(NSPoint)hotSpot:(NSImage*)image:(void**)cursor
{
    *cursor = nullptr;
}
- (void)freecursor:(void*)cursor
{}
- (void)hidecursor
{}
- (void)showcursor
{}

@end

namespace quorvel::fakes {

void startDisplayServer()
{
    if (NSApp != nil) {
        return;
    }
    @autoreleasepool {
        initialize_gnustep_backend();
        [GSDisplayServer setDefaultServerClass:[FakeDisplayServer class]];
        [NSApplication sharedApplication];
        NSSetUncaughtExceptionHandler(stop);
    }
}

} // namespace quorvel::fakes
