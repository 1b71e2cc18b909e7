// What Quorvel takes the platform's constants to be. It is compiled against Apple's headers and against those that stand
// in for them, so neither these nor the numbers that settings and ports hold can drift.

#import <AppKit/AppKit.h>
#import <ApplicationServices/ApplicationServices.h>
#import <Carbon/Carbon.h>
#import <IOKit/hidsystem/IOHIDLib.h>
#import <ServiceManagement/ServiceManagement.h>

#include "base/Keys.h"
#include "platform/Accessibility.h"
#include "platform/EventTaps.h"
#include "platform/HotKeys.h"
#include "platform/LoginItem.h"

namespace quorvel {

// Core Foundation
static_assert(kCFStringEncodingUTF8 == 0x08000100);
static_assert(NSUTF8StringEncoding == 4);
static_assert(kCFNumberSInt64Type == 4);
static_assert(noErr == osStatus::success);

// Accessibility
static_assert(kAXErrorSuccess == 0);
static_assert(kAXErrorFailure == axErrors::failure.code);
static_assert(kAXErrorIllegalArgument == axErrors::illegalArgument.code);
static_assert(kAXErrorInvalidUIElement == axErrors::invalidElement.code);
static_assert(kAXErrorCannotComplete == axErrors::cannotComplete.code);
static_assert(kAXErrorAttributeUnsupported == axErrors::attributeUnsupported.code);
static_assert(kAXErrorActionUnsupported == axErrors::actionUnsupported.code);
static_assert(kAXErrorNotificationUnsupported == axErrors::notificationUnsupported.code);
static_assert(kAXErrorAPIDisabled == axErrors::apiDisabled.code);
static_assert(kAXErrorNoValue == axErrors::noValue.code);
static_assert(kAXValueTypeCGPoint == 1);
static_assert(kAXValueTypeCGSize == 2);

// Windows and applications
static_assert(kCGNullWindowID == 0);
static_assert(kCGWindowListOptionOnScreenOnly == 1);
static_assert(kCGWindowListExcludeDesktopElements == 16);
static_assert(NSApplicationActivationPolicyRegular == 0);
static_assert(NSApplicationActivationPolicyAccessory == 1);
static_assert(NSApplicationActivationPolicyProhibited == 2);

// Keys
static_assert(kCGSessionEventTap == 1);
static_assert(kCGHeadInsertEventTap == 0);
static_assert(kCGEventTapOptionDefault == 0);
static_assert(CGEventMaskBit(kCGEventKeyDown) == keyDownEventMask);
static_assert(kCGEventKeyUp == 11);
static_assert(kCGEventFlagsChanged == 12);
static_assert(static_cast<std::uint32_t>(kCGEventTapDisabledByTimeout) == 0xFFFFFFFE);
static_assert(static_cast<std::uint32_t>(kCGEventTapDisabledByUserInput) == 0xFFFFFFFF);
static_assert(kCGKeyboardEventKeycode == 9);
static_assert(kCGEventFlagMaskAlphaShift == eventFlags::capsLock);
static_assert(kCGEventFlagMaskShift == eventFlags::shift);
static_assert(kCGEventFlagMaskControl == eventFlags::control);
static_assert(kCGEventFlagMaskAlternate == eventFlags::option);
static_assert(kCGEventFlagMaskCommand == eventFlags::command);
static_assert(kCGEventFlagMaskNumericPad == 0x200000);
static_assert(kCGEventFlagMaskSecondaryFn == 0x800000);
static_assert(NSEventModifierFlagDeviceIndependentFlagsMask == eventFlags::deviceIndependentMask);
static_assert(cmdKey == hotKeyModifiers::command);
static_assert(shiftKey == hotKeyModifiers::shift);
static_assert(optionKey == hotKeyModifiers::option);
static_assert(controlKey == hotKeyModifiers::control);
static_assert(paramErr == osStatus::parameterError);
static_assert(eventNotHandledErr == osStatus::eventNotHandled);
static_assert(eventHotKeyExistsErr == osStatus::hotKeyExists);
static_assert(eventHotKeyInvalidErr == osStatus::hotKeyInvalid);
static_assert(kEventClassKeyboard == 0x6B657962);
static_assert(kEventHotKeyPressed == 5);
static_assert(kEventParamDirectObject == 0x2D2D2D2D);
static_assert(typeEventHotKeyID == 0x686B6964);
static_assert(kUCKeyActionDown == 0);
static_assert(kUCKeyTranslateNoDeadKeysMask == 1);
static_assert(kVK_ANSI_A == keyCodes::a);
static_assert(kVK_Tab == keyCodes::tab);
static_assert(kVK_Escape == keyCodes::escape);
static_assert(kVK_LeftArrow == keyCodes::leftArrow);
static_assert(kVK_RightArrow == keyCodes::rightArrow);
static_assert(kVK_DownArrow == keyCodes::downArrow);
static_assert(kVK_UpArrow == keyCodes::upArrow);

// Permissions and the session
static_assert(kIOHIDRequestTypeListenEvent == 1);
static_assert(kIOHIDAccessTypeGranted == 0);
static_assert(SMAppServiceStatusNotRegistered == static_cast<int>(LoginItemStatus::notRegistered));
static_assert(SMAppServiceStatusEnabled == static_cast<int>(LoginItemStatus::enabled));
static_assert(SMAppServiceStatusRequiresApproval == static_cast<int>(LoginItemStatus::requiresApproval));
static_assert(SMAppServiceStatusNotFound == static_cast<int>(LoginItemStatus::notFound));

} // namespace quorvel
