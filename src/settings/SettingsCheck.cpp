#include "settings/SettingsCheck.h"

#include <cmath>
#include <cstdint>
#include <expected>
#include <limits>
#include <variant>

#include <fmt/format.h>

#include "settings/PropertyConversions.h"
#include "settings/SettingTypes.h"
#include "settings/SettingsTable.h"

namespace quorvel {

namespace {

using Checked = std::expected<PropertyValue, std::string>;

Checked checkedInteger(const PropertyValue& value)
{
    const double number = realFrom(value);
    if (number != std::trunc(number)) {
        return std::unexpected(fmt::format("{} is not a whole number", number));
    }
    if (number < 0.0 || number > std::numeric_limits<std::uint32_t>::max()) {
        return std::unexpected(fmt::format("{} is out of range", stringFrom(value).value_or("it")));
    }
    return PropertyValue{integerFrom(value)};
}

Checked checkedReal(const PropertyValue& value)
{
    const double number = realFrom(value);
    if (!std::isfinite(number)) {
        return std::unexpected(fmt::format("{} is not a finite number", number));
    }
    return PropertyValue{number};
}

Checked checkedValue(const SettingsEntry& entry)
{
    const auto& [key, value] = entry;
    const SettingDefinition* const definition = findSettingDefinition(key);
    if (definition == nullptr) {
        return std::unexpected("there is no such setting");
    }
    if (!value) {
        return std::unexpected("it holds what no setting can hold");
    }
    if (const auto mismatch = typeMismatch(*value, definition->type)) {
        return std::unexpected(fmt::format("it holds {}", *mismatch));
    }
    switch (definition->type) {
    case SettingType::integer:
        return checkedInteger(*value);
    case SettingType::real:
        return checkedReal(*value);
    default:
        return *value;
    }
}

} // namespace

CheckedSettings checkSettings(std::span<const SettingsEntry> entries)
{
    CheckedSettings result;
    for (const auto& entry : entries) {
        auto checked = checkedValue(entry);
        if (checked) {
            result.accepted.insert_or_assign(entry.first, std::move(*checked));
        } else {
            result.refusals.push_back(fmt::format("Setting \"{}\" is refused: {}.", entry.first, checked.error()));
        }
    }
    return result;
}

} // namespace quorvel
