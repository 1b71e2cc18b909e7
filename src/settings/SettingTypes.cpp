#include "settings/SettingTypes.h"

#include <cstdint>
#include <string_view>
#include <variant>

#include <fmt/format.h>

#include "settings/PropertyConversions.h"

namespace quorvel {

namespace {

bool isOfType(const PropertyValue& value, SettingType type)
{
    switch (type) {
    case SettingType::integer:
    case SettingType::real:
        return std::holds_alternative<std::int64_t>(value.value) || std::holds_alternative<double>(value.value);
    case SettingType::boolean:
        return std::holds_alternative<bool>(value.value);
    case SettingType::string:
        return std::holds_alternative<std::string>(value.value);
    case SettingType::data:
        return std::holds_alternative<PropertyData>(value.value);
    case SettingType::stringArray:
        return stringArrayFrom(value).has_value();
    case SettingType::stringDictionary:
        return stringDictionaryFrom(value).has_value();
    }
    return false;
}

std::string_view nameOf(SettingType type)
{
    switch (type) {
    case SettingType::integer:
        return "an integer";
    case SettingType::real:
        return "a number";
    case SettingType::boolean:
        return "a Boolean";
    case SettingType::string:
        return "a string";
    case SettingType::data:
        return "data";
    case SettingType::stringArray:
        return "an array of strings";
    case SettingType::stringDictionary:
        return "a dictionary of strings";
    }
    return "";
}

struct StoredTypeName {
    std::string_view operator()(bool) const { return "a Boolean"; }
    std::string_view operator()(std::int64_t) const { return "an integer"; }
    std::string_view operator()(double) const { return "a number"; }
    std::string_view operator()(const std::string&) const { return "a string"; }
    std::string_view operator()(const PropertyData&) const { return "data"; }
    std::string_view operator()(const PropertyArray&) const { return "an array"; }
    std::string_view operator()(const PropertyDictionary&) const { return "a dictionary"; }
};

} // namespace

std::optional<std::string> typeMismatch(const PropertyValue& value, SettingType type)
{
    if (isOfType(value, type)) {
        return std::nullopt;
    }
    return fmt::format("{} where {} is expected", std::visit(StoredTypeName{}, value.value), nameOf(type));
}

} // namespace quorvel
