// Texts of colours.

#include <algorithm>
#include <array>

#include "base/ColorCodec.h"
#include "tests/fuzz/FuzzTarget.h"

namespace quorvel {

void fuzz(std::span<const std::uint8_t> input)
{
    const auto color = colorFromHex(textOf(input));
    if (!color) {
        return;
    }
    const std::array components{color->red, color->green, color->blue, color->alpha};
    require(std::ranges::all_of(components, [](double each) { return each >= 0.0 && each <= 1.0; }),
            "components lie in 0…1");
    const auto text = hexStringFromColor(*color);
    require(text.size() == 9 && text.front() == '#', "a colour is written with eight digits");
    require(colorFromHex(text) == color, "a colour that is written reads as the same one");
}

} // namespace quorvel
