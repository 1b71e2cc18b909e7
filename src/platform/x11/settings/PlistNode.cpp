#include "platform/x11/settings/PlistNode.h"

#include <type_traits>

namespace quorvel::x11 {

namespace {

template <class Value>
std::optional<PropertyValue> converted(const Value& value)
{
    return PropertyValue{value};
}

std::optional<PropertyValue> converted(const PlistForeign&)
{
    return std::nullopt;
}

std::optional<PropertyValue> converted(const PlistArray& nodes)
{
    PropertyArray values;
    values.reserve(nodes.size());
    for (const PlistNode& node : nodes) {
        auto value = propertyValue(node);
        if (!value) {
            return std::nullopt;
        }
        values.push_back(std::move(*value));
    }
    return PropertyValue{std::move(values)};
}

std::optional<PropertyValue> converted(const PlistDictionary& nodes)
{
    PropertyDictionary values;
    for (const auto& [key, node] : nodes) {
        auto value = propertyValue(node);
        if (!value) {
            return std::nullopt;
        }
        values.emplace(key, std::move(*value));
    }
    return PropertyValue{std::move(values)};
}

} // namespace

PlistNode plistNode(const PropertyValue& value)
{
    return std::visit(
        [](const auto& held) {
            using Held = std::remove_cvref_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, PropertyArray>) {
                PlistArray nodes;
                nodes.reserve(held.size());
                for (const PropertyValue& element : held) {
                    nodes.push_back(plistNode(element));
                }
                return PlistNode{std::move(nodes)};
            } else if constexpr (std::is_same_v<Held, PropertyDictionary>) {
                PlistDictionary nodes;
                for (const auto& [key, element] : held) {
                    nodes.emplace(key, plistNode(element));
                }
                return PlistNode{std::move(nodes)};
            } else {
                return PlistNode{held};
            }
        },
        value.value);
}

std::optional<PropertyValue> propertyValue(const PlistNode& node)
{
    return std::visit([](const auto& held) { return converted(held); }, node.value);
}

} // namespace quorvel::x11
