#include "app/CycledWindows.h"

#include <algorithm>
#include <utility>

namespace quorvel {

CycledWindows::CycledWindows(std::vector<WindowInfo> windows, const std::optional<AxRect>& current)
    : entries(std::move(windows)), recorded(current), own(entryAt(current)), index(own.value_or(0))
{}

void CycledWindows::step(CycleDirection direction)
{
    const auto distance = direction == CycleDirection::forwards ? 1 : entries.size() - 1;
    index = (index + distance) % entries.size();
}

void CycledWindows::record(const AxRect& present)
{
    if (const auto entry = entryAt(recorded)) {
        entries[*entry].bounds = present;
        recorded = present;
        own = entry;
    }
}

void CycledWindows::enter(std::size_t newIndex)
{
    index = newIndex;
    own = newIndex;
    recorded = entries[newIndex].bounds;
}

void CycledWindows::removeCurrent()
{
    std::erase_if(entries,
                  [this](const WindowInfo& window) { return recorded && isSamePlace(window.bounds, *recorded); });
    own.reset();
    index = entries.empty() ? 0 : std::min(index, entries.size() - 1);
}

std::optional<std::size_t> CycledWindows::entryAt(const std::optional<AxRect>& rect) const
{
    if (!rect) {
        return std::nullopt;
    }
    const auto found =
        std::ranges::find_if(entries, [&](const WindowInfo& window) { return isSamePlace(window.bounds, *rect); });
    return found != entries.end() ? std::optional(static_cast<std::size_t>(found - entries.begin())) : std::nullopt;
}

} // namespace quorvel
