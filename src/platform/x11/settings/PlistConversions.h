#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/PropertyValue.h"
#include "platform/x11/settings/PlistHandle.h"

namespace quorvel::x11 {

// The text as a file can hold it: invalid UTF-8 and control characters become U+FFFD.
std::string storableText(std::string_view text);

PlistHandle plistFrom(const PropertyValue& value);

// Nothing for a value that is, or contains, what no setting holds: a date, or an integer beyond 63 bits.
std::optional<PropertyValue> propertyValueFrom(plist_t node);

void forEachEntry(plist_t dictionary, const std::function<void(std::string key, plist_t value)>& visit);

} // namespace quorvel::x11
