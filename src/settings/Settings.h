#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/PropertyValue.h"

namespace quorvel {

class UserDefaults;

// Typed access to the stored settings. Nothing is cached: every call asks the store, so that a change counts at once.
// Cheap to make and to copy; the store outlives it.
class Settings {
public:
    explicit Settings(UserDefaults& userDefaults);

    // Plain readers: a stored value of another type is converted (PropertyConversions.h), an absent one reads as 0,
    // false or nothing.
    bool isStored(std::string_view key) const;
    std::int64_t integer(std::string_view key) const;
    double real(std::string_view key) const;
    bool boolean(std::string_view key) const;
    std::optional<std::string> string(std::string_view key) const;
    std::optional<PropertyData> data(std::string_view key) const;

    // Nothing unless all elements are strings.
    std::optional<std::vector<std::string>> stringArray(std::string_view key) const;
    std::optional<std::map<std::string, std::string>> stringDictionary(std::string_view key) const;

    // Readers without conversion: nothing for a value of another type. A number is an integer, a real or a Boolean.
    std::optional<std::int64_t> integerNumber(std::string_view key) const;
    std::optional<double> realNumber(std::string_view key) const;
    std::optional<bool> booleanValue(std::string_view key) const;
    std::optional<std::string> stringValue(std::string_view key) const;

    // Readers of controls and views that are bound to a setting: without conversion, with the table's pane default for
    // a value that is absent or of another type. Reading a default stores nothing.
    std::int64_t boundInteger(std::string_view key) const;
    double boundReal(std::string_view key) const;
    bool boundBoolean(std::string_view key) const;
    std::string boundString(std::string_view key) const;

    void setInteger(std::string_view key, std::int64_t value);
    void setReal(std::string_view key, double value);
    void setBoolean(std::string_view key, bool value);
    void setString(std::string_view key, std::string value);
    void setData(std::string_view key, PropertyData value);
    void setStringArray(std::string_view key, const std::vector<std::string>& value);
    void setStringDictionary(std::string_view key, const std::map<std::string, std::string>& value);
    void remove(std::string_view key);

    // The value just as it is stored, to put it back as it was, or the key's absence.
    std::optional<PropertyValue> object(std::string_view key) const;
    void restore(std::string_view key, std::optional<PropertyValue> value);

private:
    UserDefaults* userDefaults;
};

} // namespace quorvel
