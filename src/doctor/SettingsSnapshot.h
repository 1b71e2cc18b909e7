#pragma once

#include <span>

#include "platform/UserDefaults.h"
#include "settings/SettingsCheck.h"

namespace quorvel {

// Stored settings in memory. Changes stay in there, so that what the program would do can be tried out.
class SettingsSnapshot final : public UserDefaults {
public:
    explicit SettingsSnapshot(std::span<const SettingsEntry> entries);

    std::optional<PropertyValue> object(std::string_view key) const override;
    void setObject(std::string_view key, PropertyValue value) override;
    void removeObject(std::string_view key) override;
    Subscription observeForeignChanges(std::function<void()> changed) override;

private:
    PropertyDictionary values;
};

} // namespace quorvel
