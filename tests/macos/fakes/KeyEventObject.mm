#import "macos/fakes/KeyEventObject.h"

#include <map>

namespace quorvel::fakes {

namespace {

const std::map<KeyCode, unichar>& functionCharacters()
{
    static const std::map<KeyCode, unichar> table{
        {114, NSHelpFunctionKey},      {115, NSHomeFunctionKey},       {116, NSPageUpFunctionKey},
        {119, NSEndFunctionKey},       {121, NSPageDownFunctionKey},   {122, NSF1FunctionKey},
        {123, NSLeftArrowFunctionKey}, {124, NSRightArrowFunctionKey}, {125, NSDownArrowFunctionKey},
        {126, NSUpArrowFunctionKey},
    };
    return table;
}

std::uint64_t ownFlags(KeyCode keyCode)
{
    const bool isArrow = keyCode >= keyCodes::leftArrow && keyCode <= keyCodes::upArrow;
    const bool isOnNumberPad = keyCode >= 65 && keyCode <= 92;
    std::uint64_t flags = 0;
    flags |= isArrow || isOnNumberPad ? std::uint64_t{NSEventModifierFlagNumericPad} : 0U;
    flags |= functionCharacters().contains(keyCode) ? std::uint64_t{NSEventModifierFlagFunction} : 0U;
    return flags;
}

NSString* characters(const KeyEvent& key)
{
    const auto function = functionCharacters().find(key.keyCode);
    return function != functionCharacters().end() ? [NSString stringWithCharacters:&function->second length:1]
                                                  : [NSString stringWithUTF8String:key.characters.c_str()];
}

} // namespace

NSEvent* keyDown(const KeyEvent& key)
{
    return [NSEvent keyEventWithType:NSEventTypeKeyDown
                            location:NSZeroPoint
                       modifierFlags:static_cast<NSUInteger>(key.flags | ownFlags(key.keyCode))
                           timestamp:0.0
                        windowNumber:0
                             context:nil
                          characters:characters(key)
         charactersIgnoringModifiers:characters(key)
                           isARepeat:NO
                             keyCode:static_cast<unsigned short>(key.keyCode)];
}

} // namespace quorvel::fakes
