#pragma once

#include <optional>
#include <string>

#include "platform/PropertyValue.h"
#include "settings/SettingsTable.h"

namespace quorvel {

// "a string where an integer is expected", or nothing where the value has the type. Whole numbers and others stand for
// each other: property lists written by other programs mix them.
std::optional<std::string> typeMismatch(const PropertyValue& value, SettingType type);

} // namespace quorvel
