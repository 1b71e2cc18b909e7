#pragma once

#include <string>

namespace quorvel::x11 {

// The kind of the desktop session as its environment tells it: "x11", "wayland", "tty" or what else stands there;
// "unspecified" where nothing does.
std::string sessionType();

} // namespace quorvel::x11
