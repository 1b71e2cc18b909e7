#pragma once

#include <string_view>

namespace quorvel::x11 {

// What is said when the X server goes away, by whoever notices it first.
inline constexpr std::string_view serverLossLine = "The X server closed the connection.";

} // namespace quorvel::x11
