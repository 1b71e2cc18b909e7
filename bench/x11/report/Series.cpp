#include "report/Series.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quorvel::bench {

Milliseconds Series::quantile(double fraction) const
{
    if (times.empty()) {
        return Milliseconds(std::numeric_limits<double>::quiet_NaN());
    }
    auto sorted = times;
    std::ranges::sort(sorted);
    const auto rank = static_cast<std::size_t>(std::ceil(fraction * static_cast<double>(sorted.size())));
    return sorted[std::clamp<std::size_t>(rank, 1, sorted.size()) - 1];
}

} // namespace quorvel::bench
