// What Quorvel takes the platform's constants to be. It is compiled against Apple's headers and against those that
// stand in for them, so neither these nor the numbers that settings and ports hold can drift.

#include <limits>

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
#include "platform/OverlayWindows.h"

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

// Permissions and the session
static_assert(kIOHIDRequestTypeListenEvent == 1);
static_assert(kIOHIDAccessTypeGranted == 0);
static_assert(SMAppServiceStatusNotRegistered == static_cast<int>(LoginItemStatus::notRegistered));
static_assert(SMAppServiceStatusEnabled == static_cast<int>(LoginItemStatus::enabled));
static_assert(SMAppServiceStatusRequiresApproval == static_cast<int>(LoginItemStatus::requiresApproval));
static_assert(SMAppServiceStatusNotFound == static_cast<int>(LoginItemStatus::notFound));

// AppKit: events
static_assert(NSCarriageReturnCharacter == 13);
static_assert(NSDeleteCharacter == 127);
static_assert(NSDeleteFunctionKey == 0xF728);
static_assert(NSDownArrowFunctionKey == 0xF701);
static_assert(NSEnterCharacter == 3);
static_assert(NSEventMaskKeyDown == 0x400);
static_assert(NSEventMaskLeftMouseDown == 0x2);
static_assert(NSEventMaskOtherMouseDown == 0x2000000);
static_assert(NSEventMaskRightMouseDown == 0x8);
static_assert(NSEventModifierFlagCapsLock == eventFlags::capsLock);
static_assert(NSEventModifierFlagCommand == eventFlags::command);
static_assert(NSEventModifierFlagFunction == 0x800000);
static_assert(NSEventModifierFlagHelp == 0x400000);
static_assert(NSEventModifierFlagNumericPad == 0x200000);
static_assert(NSEventModifierFlagOption == eventFlags::option);
static_assert(NSModeSwitchFunctionKey == 0xF747);
static_assert(NSUpArrowFunctionKey == 0xF700);

// AppKit: windows and panels
static_assert(NSBackingStoreBuffered == 2);
static_assert(NSWindowCollectionBehaviorCanJoinAllSpaces == collectionBehaviors::canJoinAllSpaces);
static_assert(NSWindowDocumentIconButton == 4);
static_assert(NSWindowStyleMaskClosable == 0x2);
static_assert(NSWindowStyleMaskFullSizeContentView == 0x8000);
static_assert(NSWindowStyleMaskTitled == 0x1);

// AppKit: controls
static_assert(NSAlertFirstButtonReturn == 1000);
static_assert(NSAlertStyleInformational == 1);
static_assert(NSAlertStyleWarning == 0);
static_assert(NSBoxCustom == 4);
static_assert(NSBoxSeparator == 2);
static_assert(NSControlStateValueOff == 0);
static_assert(NSControlStateValueOn == 1);
static_assert(NSDragOperationMove == 16);
static_assert(NSDragOperationNone == 0);
static_assert(NSImageLeft == 2);
static_assert(NSImageOnly == 1);
static_assert(NSImageScaleProportionallyUpOrDown == 3);
static_assert(NSLineBorder == 1);
static_assert(NSNoBorder == 0);
static_assert(NSNoImage == 0);
static_assert(NSNoTitle == 0);
static_assert(NSSegmentSwitchTrackingSelectOne == 0);
static_assert(NSTabViewControllerTabStyleToolbar == 2);
static_assert(NSTableViewDropAbove == 1);
static_assert(NSTableViewUniformColumnAutoresizingStyle == 1);
static_assert(NSViewHeightSizable == 16);
static_assert(NSViewMaxYMargin == 32);
static_assert(NSViewMinYMargin == 8);
static_assert(NSViewWidthSizable == 2);

// AppKit: text and others
static_assert(NSDateFormatterMediumStyle == 2);
static_assert(NSDateFormatterNoStyle == 0);
static_assert(NSLineBreakByTruncatingTail == 4);
static_assert(NSNotFound == std::numeric_limits<NSInteger>::max());
static_assert(NSTextAlignmentLeft == 0);

// These have other numbers or names in GNUstep, and adapters use them by name only.
#ifndef GNUSTEP
static_assert(static_cast<std::uint64_t>(NSEventModifierFlagDeviceIndependentFlagsMask) ==
              eventFlags::deviceIndependentMask);
static_assert(NSNormalWindowLevel == windowLevels::normal);
static_assert(NSFloatingWindowLevel == windowLevels::floating);
static_assert(NSStatusWindowLevel == windowLevels::status);
static_assert(NSPopUpMenuWindowLevel == windowLevels::popUpMenu);
static_assert(NSWindowAnimationBehaviorNone == 2);
static_assert(NSWindowCollectionBehaviorFullScreenAuxiliary == collectionBehaviors::fullScreenAuxiliary);
static_assert(NSWindowCollectionBehaviorIgnoresCycle == collectionBehaviors::ignoresCycle);
static_assert(NSWindowToolbarStyleUnified == 3);
static_assert(NSToolbarDisplayModeIconAndLabel == 1);
static_assert(NSViewControllerTransitionNone == 0);
static_assert(NSLayoutAttributeWidth == 7);
static_assert(NSLayoutAttributeHeight == 8);
static_assert(NSLayoutAttributeNotAnAttribute == 0);
static_assert(NSLayoutRelationGreaterThanOrEqual == 1);
static_assert(NSBezelStyleRounded == 1);
static_assert(NSButtonTypeMomentaryChange == 5);
static_assert(NSButtonTypeMomentaryPushIn == 7);
#endif

// The two change places between Apple's processors.
static_assert(NSTextAlignmentCenter + NSTextAlignmentRight == 3);

} // namespace quorvel
