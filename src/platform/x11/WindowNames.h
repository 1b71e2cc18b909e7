#pragma once

#include <string_view>

namespace quorvel::x11::windowNames {

// What windows of this program are called where people write rules for windows.
inline constexpr std::string_view title = "Quorvel";
inline constexpr std::string_view instanceAndClass{"quorvel\0Quorvel\0", 16}; // each with its end

} // namespace quorvel::x11::windowNames
