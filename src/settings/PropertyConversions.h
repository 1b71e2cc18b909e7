#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/PropertyValue.h"

namespace quorvel {

// What a stored value means to a reader that expects another type. The rules are those by which a Mac reads its
// defaults, so that a settings file means the same everywhere.

// Numbers lose their fraction, a Boolean is 0 or 1, a text is the whole number it begins with. Else 0. A value out of
// range becomes the nearest one within.
std::int64_t integerFrom(const PropertyValue& value);

// A Boolean is 0 or 1, a text is the decimal number it begins with. Else 0.
double realFrom(const PropertyValue& value);

// A number is true unless it is 0; a text is true if it begins with "Y", "y", "T", "t" or, after a sign and zeros, a
// digit from 1 to 9. Else false.
bool booleanFrom(const PropertyValue& value);

// A number becomes its decimal form, a Boolean "0" or "1". Nothing for any other type.
std::optional<std::string> stringFrom(const PropertyValue& value);

// True for numbers and Booleans, false for texts that look like them.
bool isNumber(const PropertyValue& value);

// Only collections of nothing but strings count.
std::optional<std::vector<std::string>> stringArrayFrom(const PropertyValue& value);
std::optional<std::map<std::string, std::string>> stringDictionaryFrom(const PropertyValue& value);

} // namespace quorvel
