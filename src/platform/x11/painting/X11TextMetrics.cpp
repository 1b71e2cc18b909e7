#include "platform/x11/painting/X11TextMetrics.h"

#include <cmath>

namespace quorvel::x11 {

Size X11TextMetrics::measure(std::string_view text, const Font& font) const
{
    const auto layout = layouts.layout(text, font);
    const auto metrics = layouts.lineMetrics(font);
    return {std::ceil(TextLayouts::width(layout.get())), std::ceil(metrics.ascent + metrics.descent)};
}

} // namespace quorvel::x11
