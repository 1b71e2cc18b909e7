#include "base/LogText.h"

#include <fmt/format.h>

namespace quorvel {

std::string plainLine(std::string_view text)
{
    constexpr unsigned char firstPlain = 0x20;
    constexpr unsigned char deletion = 0x7F;
    constexpr unsigned char furtherControls = 0xC2; // followed by 0x80 to 0x9F
    constexpr unsigned char firstFurther = 0x80;
    constexpr unsigned char lastFurther = 0x9F;
    std::string line;
    line.reserve(text.size());
    for (std::size_t index = 0; index < text.size(); ++index) {
        const auto byte = static_cast<unsigned char>(text[index]);
        const auto next = static_cast<unsigned char>(index + 1 < text.size() ? text[index + 1] : 0);
        const bool isFurther = byte == furtherControls && next >= firstFurther && next <= lastFurther;
        line += byte < firstPlain || byte == deletion || isFurther ? ' ' : text[index];
        index += isFurther ? 1 : 0;
    }
    return line;
}

std::string logText(double value)
{
    auto text = fmt::format("{}", value);
    if (text.find_first_not_of("-0123456789") == std::string::npos) {
        text += ".0";
    }
    return text;
}

std::string logText(const Size& size)
{
    return "(" + logText(size.width) + ", " + logText(size.height) + ")";
}

} // namespace quorvel
