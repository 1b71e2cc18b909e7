#include "doctor/SettingsSnapshot.h"

#include <utility>

namespace quorvel {

SettingsSnapshot::SettingsSnapshot(std::span<const SettingsEntry> entries)
{
    for (const auto& [key, value] : entries) {
        if (value) {
            values.insert_or_assign(key, *value);
        }
    }
}

std::optional<PropertyValue> SettingsSnapshot::object(std::string_view key) const
{
    const auto found = values.find(std::string(key));
    return found != values.end() ? std::optional(found->second) : std::nullopt;
}

void SettingsSnapshot::setObject(std::string_view key, PropertyValue value)
{
    values.insert_or_assign(std::string(key), std::move(value));
}

void SettingsSnapshot::removeObject(std::string_view key)
{
    values.erase(std::string(key));
}

// Nobody else changes what is in memory.
Subscription SettingsSnapshot::observeForeignChanges(std::function<void()>)
{
    return {};
}

} // namespace quorvel
