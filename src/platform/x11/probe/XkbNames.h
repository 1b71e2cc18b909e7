#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvel::x11 {

// The names of the layouts in the root window's property _XKB_RULES_NAMES: rules, model, layouts, variants and options,
// each with its end. "us" and "de (nodeadkeys)", in the order of the layouts' numbers.
std::vector<std::string> xkbLayoutNames(std::string_view property);

} // namespace quorvel::x11
