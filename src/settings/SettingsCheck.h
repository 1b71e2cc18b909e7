#pragma once

#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/PropertyValue.h"

namespace quorvel {

// A key of a property list with its value; without one where the list holds what no setting holds, such as a date.
using SettingsEntry = std::pair<std::string, std::optional<PropertyValue>>;

struct CheckedSettings {
    PropertyDictionary accepted;       // each with exactly the type of the table
    std::vector<std::string> refusals; // a line for people about each of the others
};

// Which entries of somebody's property list are settings of this program and may be taken over. A whole number counts
// as an integer and an integer as a real; key codes, modifiers and the other integers have to fit 32 bits, since the
// program does not start with others.
CheckedSettings checkSettings(std::span<const SettingsEntry> entries);

} // namespace quorvel
