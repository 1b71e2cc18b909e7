#pragma once

#include <string>
#include <vector>

#include <xcb/xcb.h>

namespace quorvel::x11 {

// A window that another program closes, hides or moves between two requests makes the second one fail with BadWindow,
// BadDrawable or BadMatch. That is no fault of anyone's; nothing tells it from other causes of these three.
bool isExpected(const xcb_generic_error_t& error);

struct ExtensionName {
    std::uint8_t majorOpcode = 0;
    std::string name;
};

// One line for people: which request failed, how, and on what.
std::string describe(const xcb_generic_error_t& error, const std::vector<ExtensionName>& extensions);

} // namespace quorvel::x11
