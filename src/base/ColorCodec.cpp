#include "base/ColorCodec.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

#include <fmt/format.h>

#include "base/Utf8.h"

namespace quorvel {

namespace {

// The number that the text begins with; 0 for a text that does not begin with a digit.
std::uint64_t hexNumber(std::string_view text)
{
    if (text.starts_with("0x") || text.starts_with("0X")) {
        text.remove_prefix(2);
    }
    std::uint64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number, 16);
    return number;
}

int byteOf(std::uint64_t number, unsigned shift)
{
    return static_cast<int>((number >> shift) & 0xFFU);
}

int steps(double component)
{
    // Written so that a component that is not a number counts as 0.
    return component > 0.0 ? static_cast<int>(std::lround(std::min(component, 1.0) * 255.0)) : 0;
}

} // namespace

std::optional<Color> colorFromHex(std::string_view text)
{
    const auto digits = trimmedToAlphanumerics(text);
    switch (characterCount(digits)) {
    case 6: {
        const auto number = hexNumber(digits);
        return Color::bytes(byteOf(number, 16), byteOf(number, 8), byteOf(number, 0));
    }
    case 8: {
        const auto number = hexNumber(digits);
        return Color::bytes(byteOf(number, 24), byteOf(number, 16), byteOf(number, 8), byteOf(number, 0));
    }
    default:
        return std::nullopt;
    }
}

std::string hexStringFromColor(const Color& color)
{
    return fmt::format("#{:02X}{:02X}{:02X}{:02X}", steps(color.red), steps(color.green), steps(color.blue),
                       steps(color.alpha));
}

} // namespace quorvel
