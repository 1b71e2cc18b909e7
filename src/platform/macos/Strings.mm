#include "platform/macos/Strings.h"

#include "base/Utf8.h"

namespace quorvel::macos {

NSString* nsString(std::string_view text)
{
    const std::string valid = validUtf8(text);
    return [[[NSString alloc] initWithBytes:valid.data() length:valid.size()
                                   encoding:NSUTF8StringEncoding] autorelease];
}

std::string utf8(NSString* string)
{
    const char* const text = [string UTF8String];
    return text != nullptr ? std::string(text) : std::string();
}

} // namespace quorvel::macos
