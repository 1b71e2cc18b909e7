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
    @autoreleasepool {
        NSData* const bytes = [string dataUsingEncoding:NSUTF8StringEncoding allowLossyConversion:YES];
        return {static_cast<const char*>([bytes bytes]), [bytes length]};
    }
}

} // namespace quorvel::macos
