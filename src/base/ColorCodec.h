#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/Color.h"

namespace quorvel {

// The text form of colours: "#" and hexadecimal digits for red, green, blue and alpha, alpha last.

// Reads six or eight characters, after everything at both ends that is neither letter, mark nor number was dropped.
// Six mean an alpha of 1. Any other length gives nothing. Digits may be in either case and may begin with "0x"; reading
// stops at the first character that is no digit, and what was read so far is the number.
std::optional<Color> colorFromHex(std::string_view text);

// "#RRGGBBAA" in upper case; components are clamped to 0…1 and rounded to the nearest of 256 steps.
std::string hexStringFromColor(const Color& color);

} // namespace quorvel
