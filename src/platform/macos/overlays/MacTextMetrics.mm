#include "platform/macos/overlays/MacTextMetrics.h"

#include <cmath>

#include "platform/macos/overlays/Fonts.h"

namespace quorvel::macos {

Size MacTextMetrics::measure(std::string_view text, const Font& font) const
{
    @autoreleasepool {
        NSFont* const systemFont = nsFont(font);
        const double width = text.empty() ? 0.0 : [singleLine(text, systemFont, TextAlignment::leading) size].width;
        return {std::ceil(width), std::ceil(lineHeight(systemFont))};
    }
}

} // namespace quorvel::macos
