#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/macos/CfRef.h"

namespace quorvel::macos {

// The same object for Foundation, where the two know each other's types: bridged<NSString*>(aCFString).
template <class T>
T bridged(CFTypeRef object)
{
    return static_cast<T>(const_cast<void*>(object));
}

// The object as the type that T stands for, or null if it is of another type or null itself. No reference changes
// hands.
CFStringRef asString(CFTypeRef object);
CFNumberRef asNumber(CFTypeRef object);
CFBooleanRef asBoolean(CFTypeRef object);
CFArrayRef asArray(CFTypeRef object);
CFDictionaryRef asDictionary(CFTypeRef object);

// UTF-8 in both directions. Text that is no UTF-8 gives null.
CfRef<CFStringRef> cfString(std::string_view text);
std::string utf8(CFStringRef string);

// A whole number; nothing for an object that is no number.
std::optional<std::int64_t> integer(CFTypeRef object);

} // namespace quorvel::macos
