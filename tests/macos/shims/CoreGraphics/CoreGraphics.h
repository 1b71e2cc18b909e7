#pragma once

#include <CoreFoundation/CoreFoundation.h>

// Windows
using CGWindowID = UInt32;
using CGWindowListOption = UInt32;
enum : CGWindowListOption {
    kCGWindowListOptionAll = 0,
    kCGWindowListOptionOnScreenOnly = 1,
    kCGWindowListExcludeDesktopElements = 16,
};
enum : CGWindowID { kCGNullWindowID = 0 };
#define kCGWindowOwnerPID CFSTR("kCGWindowOwnerPID")
#define kCGWindowLayer CFSTR("kCGWindowLayer")
#define kCGWindowBounds CFSTR("kCGWindowBounds")

// Events
using CGEventFlags = UInt64;
using CGEventMask = UInt64;
using CGEventRef = struct FakeCGEvent*;
using CGEventTapProxy = struct FakeCGEventTapProxy*;
enum CGEventType : UInt32 {
    kCGEventLeftMouseDown = 1,
    kCGEventKeyDown = 10,
    kCGEventKeyUp = 11,
    kCGEventFlagsChanged = 12,
    kCGEventTapDisabledByTimeout = 0xFFFFFFFE,
    kCGEventTapDisabledByUserInput = 0xFFFFFFFF,
};
enum CGEventField : UInt32 { kCGKeyboardEventAutorepeat = 8, kCGKeyboardEventKeycode = 9 };
enum CGEventTapLocation : UInt32 { kCGHIDEventTap = 0, kCGSessionEventTap = 1, kCGAnnotatedSessionEventTap = 2 };
enum CGEventTapPlacement : UInt32 { kCGHeadInsertEventTap = 0, kCGTailAppendEventTap = 1 };
enum CGEventTapOptions : UInt32 { kCGEventTapOptionDefault = 0, kCGEventTapOptionListenOnly = 1 };
enum : CGEventFlags {
    kCGEventFlagMaskAlphaShift = 0x10000,
    kCGEventFlagMaskShift = 0x20000,
    kCGEventFlagMaskControl = 0x40000,
    kCGEventFlagMaskAlternate = 0x80000,
    kCGEventFlagMaskCommand = 0x100000,
    kCGEventFlagMaskNumericPad = 0x200000,
    kCGEventFlagMaskHelp = 0x400000,
    kCGEventFlagMaskSecondaryFn = 0x800000,
};
#define CGEventMaskBit(type) (CGEventMask{1} << (type))
using CGEventTapCallBack = CGEventRef (*)(CGEventTapProxy proxy, CGEventType type, CGEventRef event, void* context);

extern "C" {
CFArrayRef CGWindowListCopyWindowInfo(CGWindowListOption option, CGWindowID window);
bool CGRectMakeWithDictionaryRepresentation(CFDictionaryRef dictionary, CGRect* rect);

CFMachPortRef CGEventTapCreate(CGEventTapLocation location, CGEventTapPlacement placement, CGEventTapOptions options,
                               CGEventMask mask, CGEventTapCallBack callback, void* context);
void CGEventTapEnable(CFMachPortRef tap, bool enable);
bool CGEventTapIsEnabled(CFMachPortRef tap);
CGEventFlags CGEventGetFlags(CGEventRef event);
std::int64_t CGEventGetIntegerValueField(CGEventRef event, CGEventField field);
void CGEventKeyboardGetUnicodeString(CGEventRef event, UniCharCount room, UniCharCount* length, UniChar* text);
}
