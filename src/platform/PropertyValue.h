#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace quorvel {

struct PropertyValue;

using PropertyData = std::vector<std::byte>;
using PropertyArray = std::vector<PropertyValue>;
using PropertyDictionary = std::map<std::string, PropertyValue>; // walked in the order of its keys

// A value of a property list, with its type kept: a stored `true` stays apart from a stored 1, and 1 from 1.0.
struct PropertyValue {
    std::variant<bool, std::int64_t, double, std::string, PropertyData, PropertyArray, PropertyDictionary> value;

    bool operator==(const PropertyValue&) const = default;
};

} // namespace quorvel
