#pragma once

// Names of NSEvent that came after GNUstep's, and what it lacks.

#import <AppKit/NSEvent.h>
#include <CoreGraphics/CoreGraphics.h>

#define NSEventMaskKeyDown NSKeyDownMask
#define NSEventMaskLeftMouseDown NSLeftMouseDownMask
#define NSEventMaskRightMouseDown NSRightMouseDownMask
#define NSEventMaskOtherMouseDown NSOtherMouseDownMask
#define NSEventModifierFlagCapsLock NSAlphaShiftKeyMask
#define NSEventModifierFlagShift NSShiftKeyMask
#define NSEventModifierFlagControl NSControlKeyMask
#define NSEventModifierFlagOption NSAlternateKeyMask
#define NSEventModifierFlagCommand NSCommandKeyMask
#define NSEventModifierFlagNumericPad NSNumericPadKeyMask
#define NSEventModifierFlagHelp NSHelpKeyMask
#define NSEventModifierFlagFunction NSFunctionKeyMask
#define NSEventTypeKeyDown NSKeyDown
using NSEventMask = unsigned long long;

@interface NSEvent (FromTaps)

+ (NSEvent*)eventWithCGEvent:(CGEventRef)event;

@end

@interface NSEvent (Monitors)

+ (id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask handler:(NSEvent* (^)(NSEvent*))handler;
+ (id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask handler:(void (^)(NSEvent*))handler;
+ (void)removeMonitor:(id)monitor;

@end
