#include "platform/macos/CfValues.h"

#include "platform/macos/Strings.h"

namespace quorvel::macos {

namespace {

template <class T>
T ofType(CFTypeRef object, CFTypeID type)
{
    return object != nullptr && CFGetTypeID(object) == type ? static_cast<T>(object) : nullptr;
}

} // namespace

CFStringRef asString(CFTypeRef object)
{
    return ofType<CFStringRef>(object, CFStringGetTypeID());
}

CFNumberRef asNumber(CFTypeRef object)
{
    return ofType<CFNumberRef>(object, CFNumberGetTypeID());
}

CFBooleanRef asBoolean(CFTypeRef object)
{
    return ofType<CFBooleanRef>(object, CFBooleanGetTypeID());
}

CFArrayRef asArray(CFTypeRef object)
{
    return ofType<CFArrayRef>(object, CFArrayGetTypeID());
}

CFDictionaryRef asDictionary(CFTypeRef object)
{
    return ofType<CFDictionaryRef>(object, CFDictionaryGetTypeID());
}

CfRef<CFStringRef> cfString(std::string_view text)
{
    return CfRef<CFStringRef>::adopt(
        CFStringCreateWithBytes(kCFAllocatorDefault, reinterpret_cast<const UInt8*>(text.data()),
                                static_cast<CFIndex>(text.size()), kCFStringEncodingUTF8, false));
}

std::string utf8(CFStringRef string)
{
    return utf8(bridged<NSString*>(string));
}

std::optional<std::int64_t> integer(CFTypeRef object)
{
    const auto number = asNumber(object);
    std::int64_t value = 0;
    if (number == nullptr || !CFNumberGetValue(number, kCFNumberSInt64Type, &value)) {
        return std::nullopt;
    }
    return value;
}

} // namespace quorvel::macos
