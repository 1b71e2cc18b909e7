#include "platform/simulated/Journal.h"

#include <algorithm>
#include <iterator>

namespace quorvel {

std::vector<std::string> Journal::entries(const std::vector<std::string_view>& prefixes) const
{
    std::vector<std::string> result;
    std::ranges::copy_if(recorded, std::back_inserter(result), [&](const std::string& entry) {
        return std::ranges::any_of(prefixes, [&](std::string_view prefix) { return entry.starts_with(prefix); });
    });
    return result;
}

std::size_t Journal::count(std::string_view prefix) const
{
    return entries({prefix}).size();
}

void Journal::duringNext(std::string prefix, std::function<void()> action)
{
    interruptions.push_back({std::move(prefix), std::move(action)});
}

void Journal::add(std::string entry)
{
    recorded.push_back(std::move(entry));
    const auto match = std::ranges::find_if(
        interruptions, [&](const Interruption& each) { return recorded.back().starts_with(each.prefix); });
    if (match != interruptions.end()) {
        const auto action = std::move(match->action);
        interruptions.erase(match);
        action();
    }
}

} // namespace quorvel
