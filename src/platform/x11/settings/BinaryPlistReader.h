#pragma once

#include <expected>
#include <string>
#include <string_view>

#include "platform/x11/settings/PlistNode.h"

namespace quorvel::x11 {

// What every binary property list begins with.
inline constexpr std::string_view binaryPlistMagic = "bplist0";

// Reads the binary form of a property list, as a Mac keeps a defaults domain on disk.
std::expected<PlistNode, std::string> readBinaryPlist(std::string_view bytes);

} // namespace quorvel::x11
