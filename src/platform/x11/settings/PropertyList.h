#pragma once

#include <expected>
#include <string>
#include <string_view>

#include "platform/x11/settings/PlistNode.h"

namespace quorvel::x11 {

// The bytes of a property list whose outermost value is a dictionary, in the XML or the binary form. The error says in
// a few words what is wrong and where.
//
// Strict on purpose: a number that cannot be read is an error and not 0, since the file is written back later and would
// lose what it held.
std::expected<PlistDictionary, std::string> parsePropertyList(std::string_view bytes);

// The XML form, keys in order. Characters that XML cannot hold become U+FFFD.
std::string propertyListXml(const PlistDictionary& dictionary);

} // namespace quorvel::x11
