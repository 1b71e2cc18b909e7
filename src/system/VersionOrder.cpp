#include "system/VersionOrder.h"

#include <algorithm>
#include <vector>

namespace quorvel {

namespace {

constexpr std::string_view digits = "0123456789";
constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

struct Component {
    bool isNumber = true;
    std::string_view text; // a number has no leading zeros, so that 0 is empty
};

// Numbers and words; whatever else stands between them separates.
std::vector<Component> componentsOf(std::string_view version)
{
    version = version.substr(0, version.find('+'));
    if (version.starts_with('v') || version.starts_with('V')) {
        version.remove_prefix(1);
    }
    std::vector<Component> components;
    while (!version.empty()) {
        const bool isNumber = digits.contains(version.front());
        const bool isWord = letters.contains(version.front());
        const auto end = std::min(version.find_first_not_of(isNumber ? digits : letters), version.size());
        if (isNumber) {
            const auto first = std::min(version.find_first_not_of('0'), end);
            components.push_back({true, version.substr(first, end - first)});
        } else if (isWord) {
            components.push_back({false, version.substr(0, end)});
        }
        version.remove_prefix(std::max<std::size_t>(end, 1));
    }
    return components;
}

std::weak_ordering compare(const Component& left, const Component& right)
{
    if (left.isNumber != right.isNumber) {
        return left.isNumber ? std::weak_ordering::greater : std::weak_ordering::less;
    }
    if (left.isNumber && left.text.size() != right.text.size()) {
        return left.text.size() <=> right.text.size();
    }
    return left.text <=> right.text;
}

} // namespace

std::weak_ordering compareVersions(std::string_view left, std::string_view right)
{
    const auto leftComponents = componentsOf(left);
    const auto rightComponents = componentsOf(right);
    const auto componentAt = [](const std::vector<Component>& components, std::size_t index) {
        return index < components.size() ? components[index] : Component{};
    };
    for (std::size_t index = 0; index < std::max(leftComponents.size(), rightComponents.size()); ++index) {
        const auto order = compare(componentAt(leftComponents, index), componentAt(rightComponents, index));
        if (order != std::weak_ordering::equivalent) {
            return order;
        }
    }
    return std::weak_ordering::equivalent;
}

} // namespace quorvel
