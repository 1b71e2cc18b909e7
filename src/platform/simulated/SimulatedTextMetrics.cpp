#include "platform/simulated/SimulatedTextMetrics.h"

#include <cmath>

#include "base/Utf8.h"
#include "platform/simulated/Journal.h"

namespace quorvel {

Size SimulatedTextMetrics::measure(std::string_view text, const Font& font) const
{
    journal.record("TextMetrics.measure({}, {})", text, font.size);
    const double advance = font.weight == FontWeight::regular ? 0.6 : 0.65;
    return {std::ceil(static_cast<double>(characterCount(text)) * advance * font.size), std::ceil(1.2 * font.size)};
}

} // namespace quorvel
