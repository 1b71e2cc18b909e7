#include "platform/x11/EventMasks.h"

namespace quorvel::x11 {

std::uint32_t EventMasks::add(xcb_window_t window, std::uint32_t mask)
{
    auto& counts = windows[window];
    for (std::size_t bit = 0; bit < counts.size(); ++bit) {
        counts[bit] += (mask >> bit) & 1U;
    }
    return maskOf(counts);
}

std::uint32_t EventMasks::remove(xcb_window_t window, std::uint32_t mask)
{
    const auto entry = windows.find(window);
    if (entry == windows.end()) {
        return XCB_EVENT_MASK_NO_EVENT;
    }
    for (std::size_t bit = 0; bit < entry->second.size(); ++bit) {
        if (((mask >> bit) & 1U) != 0 && entry->second[bit] > 0) {
            --entry->second[bit];
        }
    }
    const auto left = maskOf(entry->second);
    if (left == XCB_EVENT_MASK_NO_EVENT) {
        windows.erase(entry);
    }
    return left;
}

std::uint32_t EventMasks::maskOf(const Counts& counts)
{
    std::uint32_t mask = 0;
    for (std::size_t bit = 0; bit < counts.size(); ++bit) {
        mask |= counts[bit] > 0 ? 1U << bit : 0U;
    }
    return mask;
}

} // namespace quorvel::x11
