#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/PropertyValue.h"

namespace quorvel::x11 {

struct PlistNode;

using PlistArray = std::vector<PlistNode>;
using PlistDictionary = std::map<std::string, PlistNode, std::less<>>;

// A leaf that no setting holds, kept as it stands in the file: a date, or an integer that needs more than 64 bits.
struct PlistForeign {
    std::string element;
    std::string text;

    bool operator==(const PlistForeign&) const = default;
};

// A value as a property list file holds it: everything that settings can hold, and leaves that only pass through.
struct PlistNode {
    std::variant<bool, std::int64_t, double, std::string, PropertyData, PlistArray, PlistDictionary, PlistForeign>
        value;

    bool operator==(const PlistNode&) const = default;
};

// How deep containers may lie inside one another; deeper files count as damaged.
inline constexpr std::size_t maximumPlistDepth = 128;

PlistNode plistNode(const PropertyValue& value);

// Nothing for a value that is, or contains, a foreign leaf.
std::optional<PropertyValue> propertyValue(const PlistNode& node);

} // namespace quorvel::x11
