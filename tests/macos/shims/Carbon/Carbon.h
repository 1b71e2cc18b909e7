#pragma once

#include <ApplicationServices/ApplicationServices.h>

using OSType = UInt32;
using OptionBits = UInt32;
using ItemCount = unsigned long;
using ByteCount = unsigned long;

// Events and hot keys
using EventRef = struct FakeEvent*;
using EventTargetRef = struct FakeEventTarget*;
using EventHandlerRef = struct FakeEventHandler*;
using EventHandlerCallRef = struct FakeEventHandlerCall*;
using EventHotKeyRef = struct FakeEventHotKey*;
using EventParamName = OSType;
using EventParamType = OSType;
using EventHandlerUPP = OSStatus (*)(EventHandlerCallRef call, EventRef event, void* context);

struct EventTypeSpec {
    OSType eventClass;
    UInt32 eventKind;
};
struct EventHotKeyID {
    OSType signature;
    UInt32 id;
};
enum : OSType { kEventClassKeyboard = 0x6B657962 };
enum : UInt32 { kEventHotKeyPressed = 5, kEventHotKeyReleased = 6 };
enum : EventParamName { kEventParamDirectObject = 0x2D2D2D2D };
enum : EventParamType { typeEventHotKeyID = 0x686B6964 };
enum : OSStatus {
    paramErr = -50,
    eventParameterNotFoundErr = -9870,
    eventNotHandledErr = -9874,
    eventHotKeyExistsErr = -9878,
    eventHotKeyInvalidErr = -9879,
};
enum { cmdKey = 0x100, shiftKey = 0x200, optionKey = 0x800, controlKey = 0x1000 };

// Keyboard layouts
using TISInputSourceRef = struct FakeTISInputSource*;
struct UCKeyboardLayout {};
#define kTISPropertyUnicodeKeyLayoutData CFSTR("TISPropertyUnicodeKeyLayoutData")
enum : UInt16 { kUCKeyActionDown = 0 };

extern "C" {
EventTargetRef GetApplicationEventTarget();
OSStatus InstallEventHandler(EventTargetRef target, EventHandlerUPP handler, ItemCount count,
                             const EventTypeSpec* types, void* context, EventHandlerRef* installed);
OSStatus RemoveEventHandler(EventHandlerRef handler);
OSStatus CallNextEventHandler(EventHandlerCallRef call, EventRef event);
OSStatus GetEventParameter(EventRef event, EventParamName name, EventParamType type, EventParamType* actualType,
                           ByteCount room, ByteCount* actualSize, void* value);
OSStatus RegisterEventHotKey(UInt32 keyCode, UInt32 modifiers, EventHotKeyID id, EventTargetRef target,
                             OptionBits options, EventHotKeyRef* hotKey);
OSStatus UnregisterEventHotKey(EventHotKeyRef hotKey);
Boolean IsSecureEventInputEnabled();

TISInputSourceRef TISCopyCurrentKeyboardInputSource();
TISInputSourceRef TISCopyCurrentKeyboardLayoutInputSource();
void* TISGetInputSourceProperty(TISInputSourceRef source, CFStringRef key);
UInt8 LMGetKbdType();
OSStatus UCKeyTranslate(const UCKeyboardLayout* layout, UInt16 keyCode, UInt16 action, UInt32 modifiers,
                        UInt32 keyboardType, OptionBits options, UInt32* deadKeyState, UniCharCount room,
                        UniCharCount* length, UniChar* text);
}
