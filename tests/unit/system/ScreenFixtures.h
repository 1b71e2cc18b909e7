#pragma once

#include "platform/Screens.h"

namespace quorvel::fixtures {

// Displays around a primary one of 1440 by 900 points with a menu bar of 25.
inline constexpr Screen primary{1, {0, 0, 1440, 900}, {0, 0, 1440, 875}};
inline constexpr Screen rightSameSize{2, {1440, 0, 1440, 900}, {1440, 0, 1440, 875}};
inline constexpr Screen left{3, {-1920, 0, 1920, 1080}, {-1920, 50, 1920, 1005}};
inline constexpr Screen above{4, {0, 900, 1920, 1080}, {0, 900, 1920, 1055}};
inline constexpr Screen below{5, {0, -1080, 1920, 1080}, {0, -1080, 1920, 1055}};

} // namespace quorvel::fixtures
