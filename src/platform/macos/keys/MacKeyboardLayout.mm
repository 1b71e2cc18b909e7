#include "platform/macos/keys/MacKeyboardLayout.h"

#include <algorithm>
#include <array>

#include <Carbon/Carbon.h>

#include "platform/macos/CfValues.h"
#include "platform/macos/Strings.h"

namespace quorvel::macos {

namespace {

CFDataRef layoutData(TISInputSourceRef source)
{
    return source != nullptr
               ? static_cast<CFDataRef>(TISGetInputSourceProperty(source, kTISPropertyUnicodeKeyLayoutData))
               : nullptr;
}

// What the current keyboard types by. Chinese, Japanese and others have no table of keys; they stand on a layout that
// has.
CfRef<CFDataRef> currentLayout()
{
    const auto current = CfRef<TISInputSourceRef>::adopt(TISCopyCurrentKeyboardInputSource());
    if (const auto data = layoutData(current.get())) {
        return CfRef<CFDataRef>::retain(data);
    }
    const auto below = CfRef<TISInputSourceRef>::adopt(TISCopyCurrentKeyboardLayoutInputSource());
    return CfRef<CFDataRef>::retain(layoutData(below.get()));
}

// Arrows and function keys type control characters, which nobody sees.
bool isControl(UniChar character)
{
    return character < 0x20 || character == 0x7F;
}

} // namespace

std::string MacKeyboardLayout::characters(KeyCode keyCode)
{
    constexpr KeyCode keyCodeCount = 128;
    const auto layout = keyCode >= 0 && keyCode < keyCodeCount ? currentLayout() : CfRef<CFDataRef>();
    if (!layout) {
        return {};
    }
    UInt32 deadKeyState = 0;
    std::array<UniChar, 8> text{};
    UniCharCount length = 0;
    const auto status = UCKeyTranslate(reinterpret_cast<const UCKeyboardLayout*>(CFDataGetBytePtr(layout.get())),
                                       static_cast<UInt16>(keyCode), kUCKeyActionDown, 0, LMGetKbdType(), 0,
                                       &deadKeyState, text.size(), &length, text.data());
    if (status != noErr || std::any_of(text.begin(), text.begin() + length, isControl)) {
        return {};
    }
    @autoreleasepool {
        return utf8([NSString stringWithCharacters:text.data() length:length]);
    }
}

ModifierNames MacKeyboardLayout::modifierNames() const
{
    return {"Command", "Shift", "Option", "Control"};
}

} // namespace quorvel::macos
