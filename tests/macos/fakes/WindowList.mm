#include <CoreGraphics/CoreGraphics.h>
#import <Foundation/Foundation.h>

#include "macos/fakes/FakeDesktop.h"
#include "macos/fakes/FakeObject.h"

using namespace quorvel;
using fakes::as;
using fakes::FakeDesktop;

namespace {

NSDictionary* description(const WindowListEntry& window)
{
    NSMutableDictionary* const result = [NSMutableDictionary dictionary];
    if (window.ownerProcess) {
        [result setObject:[NSNumber numberWithInt:FakeDesktop::onSystem(*window.ownerProcess)]
                   forKey:as<NSString*>(kCGWindowOwnerPID)];
    }
    if (window.layer) {
        [result setObject:[NSNumber numberWithInt:*window.layer] forKey:as<NSString*>(kCGWindowLayer)];
    }
    if (window.bounds) {
        NSDictionary* const bounds = @{
            @"X" : [NSNumber numberWithDouble:window.bounds->x],
            @"Y" : [NSNumber numberWithDouble:window.bounds->y],
            @"Width" : [NSNumber numberWithDouble:window.bounds->width],
            @"Height" : [NSNumber numberWithDouble:window.bounds->height],
        };
        [result setObject:bounds forKey:as<NSString*>(kCGWindowBounds)];
    }
    return result;
}

} // namespace

extern "C" {

CFArrayRef CGWindowListCopyWindowInfo(CGWindowListOption option, CGWindowID)
{
    auto& desktop = FakeDesktop::current().desktop;
    NSMutableArray* const windows = [[NSMutableArray alloc] init];
    fakes::ownReferences(1);
    for (const auto& each : desktop.windowList.onScreenWindows()) {
        [windows addObject:description(each)];
    }
    if ((option & kCGWindowListOptionOnScreenOnly) == 0) {
        for (const auto* application : desktop.windowServer.runningApplications()) {
            for (const auto* each : desktop.windowServer.windows(*application)) {
                if (each->isMinimized()) {
                    [windows addObject:description(each->listing())];
                }
            }
        }
    }
    if ((option & kCGWindowListExcludeDesktopElements) == 0) {
        constexpr ProcessId dock = 200;
        [windows addObject:description({dock, -2147483603, AxRect{0.0, 0.0, 1440.0, 900.0}})];
    }
    return reinterpret_cast<CFArrayRef>(windows);
}

bool CGRectMakeWithDictionaryRepresentation(CFDictionaryRef dictionary, CGRect* rect)
{
    NSDictionary* const parts = as<NSDictionary*>(dictionary);
    const auto part = [&](NSString* name) { return [[parts objectForKey:name] doubleValue]; };
    *rect = NSMakeRect(part(@"X"), part(@"Y"), part(@"Width"), part(@"Height"));
    return [parts count] == 4;
}
}
