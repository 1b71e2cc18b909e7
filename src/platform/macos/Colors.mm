#include "platform/macos/Colors.h"

namespace quorvel::macos {

NSColor* nsColor(const Color& color)
{
    return [NSColor colorWithSRGBRed:color.red green:color.green blue:color.blue alpha:color.alpha];
}

Color color(NSColor* color)
{
    NSColor* const converted = [color colorUsingColorSpace:[NSColorSpace sRGBColorSpace]];
    if (converted == nil) {
        return Color::clear();
    }
    return {
        [converted redComponent], [converted greenComponent], [converted blueComponent], [converted alphaComponent]};
}

} // namespace quorvel::macos
