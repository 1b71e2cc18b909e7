#include <algorithm>
#include <map>

#include <Carbon/Carbon.h>

#include "macos/fakes/FakeDesktop.h"
#import "macos/fakes/FakeObject.h"

using namespace quorvel;
using fakes::as;
using fakes::FakeDesktop;

// An input source: a keyboard layout, or an input method, which has no table of keys.
@interface QuorvelInputSource : QuorvelFakeObject {
@public
    NSData* layout;
}
@end

@implementation QuorvelInputSource

- (void)dealloc
{
    [layout release];
    [super dealloc];
}

@end

namespace {

constexpr UInt8 keyboardType = 91;

TISInputSourceRef createSource(bool hasLayout)
{
    fakes::ownReferences(1);
    QuorvelInputSource* const source = [[QuorvelInputSource alloc] init];
    source->layout = hasLayout ? [[NSData alloc] initWithBytes:"layout" length:6] : nil;
    return reinterpret_cast<TISInputSourceRef>(source);
}

// What keys without a character type on a Mac.
UniChar controlCharacter(UInt16 keyCode)
{
    static const std::map<UInt16, UniChar> table{{123, 0x1C}, {124, 0x1D}, {125, 0x1F}, {126, 0x1E}, {122, 0x10}};
    const auto entry = table.find(keyCode);
    return entry != table.end() ? entry->second : UniChar{0};
}

} // namespace

extern "C" {

TISInputSourceRef TISCopyCurrentKeyboardInputSource()
{
    return createSource(!FakeDesktop::current().typesByInputMethod);
}

TISInputSourceRef TISCopyCurrentKeyboardLayoutInputSource()
{
    return createSource(true);
}

void* TISGetInputSourceProperty(TISInputSourceRef source, CFStringRef)
{
    return as<QuorvelInputSource*>(source)->layout;
}

UInt8 LMGetKbdType()
{
    return keyboardType;
}

OSStatus UCKeyTranslate(const UCKeyboardLayout* layout, UInt16 keyCode, UInt16, UInt32, UInt32 type, OptionBits,
                        UInt32* deadKeyState, UniCharCount room, UniCharCount* length, UniChar* text)
{
    if (layout == nullptr || type != keyboardType || keyCode > 127) {
        return paramErr;
    }
    const auto typed = FakeDesktop::current().desktop.keyboardLayout.typed(keyCode, 0);
    NSString* string = [NSString stringWithUTF8String:typed.c_str()];
    if (const auto control = controlCharacter(keyCode); control != 0) {
        string = [NSString stringWithCharacters:&control length:1];
    }
    *length = std::min<UniCharCount>([string length], room);
    *deadKeyState = *length == 0 ? 1 : 0;
    [string getCharacters:text range:NSMakeRange(0, *length)];
    return noErr;
}
}
