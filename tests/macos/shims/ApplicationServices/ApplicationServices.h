#pragma once

#include <CoreGraphics/CoreGraphics.h>

using AXUIElementRef = const struct FakeAXUIElement*;
using AXValueRef = const struct FakeAXValue*;
using AXObserverRef = struct FakeAXObserver*;

enum AXError : SInt32 {
    kAXErrorSuccess = 0,
    kAXErrorFailure = -25200,
    kAXErrorIllegalArgument = -25201,
    kAXErrorInvalidUIElement = -25202,
    kAXErrorCannotComplete = -25204,
    kAXErrorAttributeUnsupported = -25205,
    kAXErrorActionUnsupported = -25206,
    kAXErrorNotificationUnsupported = -25207,
    kAXErrorAPIDisabled = -25211,
    kAXErrorNoValue = -25212,
};
enum AXValueType : UInt32 { kAXValueTypeCGPoint = 1, kAXValueTypeCGSize = 2 };
using AXObserverCallback = void (*)(AXObserverRef observer, AXUIElementRef element, CFStringRef name, void* context);

#define kAXTrustedCheckOptionPrompt CFSTR("AXTrustedCheckOptionPrompt")

extern "C" {
Boolean AXIsProcessTrusted();
Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef options);

CFTypeID AXUIElementGetTypeID();
AXUIElementRef AXUIElementCreateApplication(pid_t process);
AXError AXUIElementCopyAttributeValue(AXUIElementRef element, CFStringRef name, CFTypeRef* value);
AXError AXUIElementSetAttributeValue(AXUIElementRef element, CFStringRef name, CFTypeRef value);
AXError AXUIElementPerformAction(AXUIElementRef element, CFStringRef name);
AXError AXUIElementGetPid(AXUIElementRef element, pid_t* process);
AXError AXUIElementSetMessagingTimeout(AXUIElementRef element, float seconds);

CFTypeID AXValueGetTypeID();
AXValueRef AXValueCreate(AXValueType type, const void* value);
AXValueType AXValueGetType(AXValueRef value);
Boolean AXValueGetValue(AXValueRef value, AXValueType type, void* result);

AXError AXObserverCreate(pid_t process, AXObserverCallback callback, AXObserverRef* observer);
AXError AXObserverAddNotification(AXObserverRef observer, AXUIElementRef element, CFStringRef name, void* context);
AXError AXObserverRemoveNotification(AXObserverRef observer, AXUIElementRef element, CFStringRef name);
CFRunLoopSourceRef AXObserverGetRunLoopSource(AXObserverRef observer);
}
