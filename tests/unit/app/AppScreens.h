#pragma once

#include "tests/unit/system/ScreenFixtures.h"

namespace quorvel::fixtures {

// The primary display with a dock, and more displays to its right.
inline constexpr Screen bottomDock{1, {0, 0, 1440, 900}, {0, 70, 1440, 805}};
inline constexpr Screen leftDock{1, {0, 0, 1440, 900}, {60, 0, 1380, 875}};
inline constexpr Screen right{6, {1440, 0, 1920, 1080}, {1440, 0, 1920, 1055}};
inline constexpr Screen rightTaller{7, {1440, 0, 2560, 1440}, {1440, 0, 2560, 1415}};

} // namespace quorvel::fixtures
