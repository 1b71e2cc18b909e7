#include "platform/macos/Colors.h"

namespace quorvel::macos {

namespace {

std::optional<Color> colorIn(NSColorSpace* space, NSColor* color)
{
    NSColor* const converted = [color colorUsingColorSpace:space];
    if (converted == nil) {
        return std::nullopt;
    }
    return Color{
        [converted redComponent], [converted greenComponent], [converted blueComponent], [converted alphaComponent]};
}

} // namespace

NSColor* nsColor(const Color& color)
{
    return [NSColor colorWithSRGBRed:color.red green:color.green blue:color.blue alpha:color.alpha];
}

Color color(NSColor* color)
{
    return colorIn([NSColorSpace sRGBColorSpace], color).value_or(Color::clear());
}

std::optional<Color> deviceColor(NSColor* color)
{
    return colorIn([NSColorSpace deviceRGBColorSpace], color);
}

} // namespace quorvel::macos
