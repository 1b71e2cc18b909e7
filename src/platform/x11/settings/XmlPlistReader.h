#pragma once

#include <expected>
#include <string>
#include <string_view>

#include "platform/x11/settings/PlistNode.h"

namespace quorvel::x11 {

// Reads the XML form of a property list, in UTF-8.
std::expected<PlistNode, std::string> readXmlPlist(std::string_view text);

} // namespace quorvel::x11
