#pragma once

// Core Foundation over Foundation: every Core Foundation object is an Objective-C object, and the functions that hand
// out or take references keep count of them (fakes/CoreFoundation.mm). Types and values are those of macOS.

#include <cstdint>

#import <Foundation/NSGeometry.h>
#import <Foundation/NSString.h>
#import <Foundation/NSValue.h>
#include <sys/types.h>

using UInt8 = std::uint8_t;
using UInt16 = std::uint16_t;
using SInt32 = std::int32_t;
using UInt32 = std::uint32_t;
using UInt64 = std::uint64_t;
using Boolean = unsigned char;
using OSStatus = SInt32;
using UniChar = UInt16;
using UniCharCount = unsigned long;
enum { noErr = 0 };

using CGPoint = NSPoint;
using CGSize = NSSize;
using CGRect = NSRect;
#define CGPointMake NSMakePoint
#define CGSizeMake NSMakeSize
#define CGRectMake NSMakeRect

using CFTypeRef = const void*;
using CFTypeID = unsigned long;
using CFIndex = long;
using CFOptionFlags = unsigned long;
using CFTimeInterval = double;
using CFAbsoluteTime = double;
using CFStringEncoding = UInt32;
using CFAllocatorRef = const struct FakeCFAllocator*;
using CFStringRef = const struct FakeCFString*;
using CFArrayRef = const struct FakeCFArray*;
using CFDictionaryRef = const struct FakeCFDictionary*;
using CFNumberRef = const struct FakeCFNumber*;
using CFBooleanRef = const struct FakeCFBoolean*;
using CFDataRef = const struct FakeCFData*;
using CFRunLoopRef = struct FakeCFRunLoop*;
using CFRunLoopSourceRef = struct FakeCFRunLoopSource*;
using CFRunLoopTimerRef = struct FakeCFRunLoopTimer*;
using CFMachPortRef = struct FakeCFMachPort*;
using CFRunLoopMode = CFStringRef;

struct CFDictionaryKeyCallBacks {};
struct CFDictionaryValueCallBacks {};
extern const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks;
extern const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks;

enum { kCFStringEncodingUTF8 = 0x08000100 };
enum CFNumberType : CFIndex {
    kCFNumberSInt32Type = 3,
    kCFNumberSInt64Type = 4,
    kCFNumberFloat64Type = 6,
};

#define kCFAllocatorDefault (static_cast<CFAllocatorRef>(nullptr))
#define kCFBooleanTrue ((CFBooleanRef)[NSNumber numberWithBool:1])
#define kCFBooleanFalse ((CFBooleanRef)[NSNumber numberWithBool:0])
#define CFSTR(text) ((CFStringRef) @text)
#define kCFRunLoopDefaultMode CFSTR("kCFRunLoopDefaultMode")
#define kCFRunLoopCommonModes CFSTR("kCFRunLoopCommonModes")

extern "C" {
CFTypeRef CFRetain(CFTypeRef object);
void CFRelease(CFTypeRef object);
Boolean CFEqual(CFTypeRef one, CFTypeRef other);
CFTypeID CFGetTypeID(CFTypeRef object);
CFTypeID CFStringGetTypeID();
CFTypeID CFArrayGetTypeID();
CFTypeID CFDictionaryGetTypeID();
CFTypeID CFNumberGetTypeID();
CFTypeID CFBooleanGetTypeID();
CFTypeID CFDataGetTypeID();

CFStringRef CFStringCreateWithBytes(CFAllocatorRef allocator, const UInt8* bytes, CFIndex count,
                                    CFStringEncoding encoding, Boolean isExternal);
CFIndex CFArrayGetCount(CFArrayRef array);
const void* CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index);

CFDictionaryRef CFDictionaryCreate(CFAllocatorRef allocator, const void** keys, const void** values, CFIndex count,
                                   const CFDictionaryKeyCallBacks* keyCallBacks,
                                   const CFDictionaryValueCallBacks* valueCallBacks);
const void* CFDictionaryGetValue(CFDictionaryRef dictionary, const void* key);

Boolean CFBooleanGetValue(CFBooleanRef boolean);
Boolean CFNumberIsFloatType(CFNumberRef number);
Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void* value);

const UInt8* CFDataGetBytePtr(CFDataRef data);

CFRunLoopRef CFRunLoopGetMain();
void CFRunLoopPerformBlock(CFRunLoopRef loop, CFTypeRef mode, void (^block)());
void CFRunLoopWakeUp(CFRunLoopRef loop);
CFAbsoluteTime CFAbsoluteTimeGetCurrent();
CFRunLoopTimerRef CFRunLoopTimerCreateWithHandler(CFAllocatorRef allocator, CFAbsoluteTime fireDate,
                                                  CFTimeInterval interval, CFOptionFlags flags, CFIndex order,
                                                  void (^handler)(CFRunLoopTimerRef timer));
void CFRunLoopAddTimer(CFRunLoopRef loop, CFRunLoopTimerRef timer, CFRunLoopMode mode);
void CFRunLoopAddSource(CFRunLoopRef loop, CFRunLoopSourceRef source, CFRunLoopMode mode);
void CFRunLoopRemoveSource(CFRunLoopRef loop, CFRunLoopSourceRef source, CFRunLoopMode mode);
void CFRunLoopSourceInvalidate(CFRunLoopSourceRef source);
CFRunLoopSourceRef CFMachPortCreateRunLoopSource(CFAllocatorRef allocator, CFMachPortRef port, CFIndex order);
void CFMachPortInvalidate(CFMachPortRef port);
}
