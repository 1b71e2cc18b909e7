#include "platform/macos/keys/KeyEvents.h"

#include "platform/macos/Strings.h"

namespace quorvel::macos {

namespace {

// Keys without characters, such as arrows and F1, have ones of a private range.
bool isFunctionKey(NSString* characters)
{
    const unichar first = [characters length] > 0 ? [characters characterAtIndex:0] : u'\0';
    return first >= NSUpArrowFunctionKey && first <= NSModeSwitchFunctionKey;
}

std::uint64_t heldFlags(NSEvent* event)
{
    std::uint64_t others = NSEventModifierFlagNumericPad | NSEventModifierFlagHelp | NSEventModifierFlagCapsLock;
    if (isFunctionKey([event charactersIgnoringModifiers])) {
        others |= NSEventModifierFlagFunction;
    }
    return [event modifierFlags] & ~others;
}

} // namespace

KeyEvent keyEvent(NSEvent* event)
{
    @autoreleasepool {
        return {[event keyCode], utf8([event characters]), heldFlags(event)};
    }
}

} // namespace quorvel::macos
