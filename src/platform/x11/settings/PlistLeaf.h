#pragma once

#include <optional>
#include <string_view>

#include "platform/x11/settings/PlistNode.h"

namespace quorvel::x11 {

// The value of an XML leaf element: "string", "integer", "real", "true", "false", "date" or "data". Nothing for another
// element and for a text that is no value of it.
std::optional<PlistNode> plistLeaf(std::string_view element, std::string_view text);

} // namespace quorvel::x11
