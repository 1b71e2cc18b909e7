#include "settings/Settings.h"

#include <utility>

#include "platform/UserDefaults.h"
#include "settings/PropertyConversions.h"
#include "settings/SettingsTable.h"

namespace quorvel {

namespace {

template <class Value>
Value paneDefault(std::string_view key)
{
    return std::get<Value>(settingDefinition(key).paneDefault);
}

template <class Value>
std::optional<Value> valueOfType(const std::optional<PropertyValue>& stored)
{
    const auto* value = stored ? std::get_if<Value>(&stored->value) : nullptr;
    return value != nullptr ? std::optional(*value) : std::nullopt;
}

} // namespace

Settings::Settings(UserDefaults& userDefaults) : userDefaults(&userDefaults) {}

bool Settings::isStored(std::string_view key) const
{
    return userDefaults->object(key).has_value();
}

std::int64_t Settings::integer(std::string_view key) const
{
    return userDefaults->object(key).transform(integerFrom).value_or(0);
}

double Settings::real(std::string_view key) const
{
    return userDefaults->object(key).transform(realFrom).value_or(0.0);
}

bool Settings::boolean(std::string_view key) const
{
    return userDefaults->object(key).transform(booleanFrom).value_or(false);
}

std::optional<std::string> Settings::string(std::string_view key) const
{
    return userDefaults->object(key).and_then(stringFrom);
}

std::optional<PropertyData> Settings::data(std::string_view key) const
{
    return valueOfType<PropertyData>(userDefaults->object(key));
}

std::optional<std::vector<std::string>> Settings::stringArray(std::string_view key) const
{
    return userDefaults->object(key).and_then(stringArrayFrom);
}

std::optional<std::map<std::string, std::string>> Settings::stringDictionary(std::string_view key) const
{
    return userDefaults->object(key).and_then(stringDictionaryFrom);
}

std::optional<std::int64_t> Settings::integerNumber(std::string_view key) const
{
    const auto stored = userDefaults->object(key);
    return stored && isNumber(*stored) ? std::optional(integerFrom(*stored)) : std::nullopt;
}

std::optional<double> Settings::realNumber(std::string_view key) const
{
    const auto stored = userDefaults->object(key);
    return stored && isNumber(*stored) ? std::optional(realFrom(*stored)) : std::nullopt;
}

std::optional<bool> Settings::booleanValue(std::string_view key) const
{
    return valueOfType<bool>(userDefaults->object(key));
}

std::optional<std::string> Settings::stringValue(std::string_view key) const
{
    return valueOfType<std::string>(userDefaults->object(key));
}

std::int64_t Settings::boundInteger(std::string_view key) const
{
    const auto stored = integerNumber(key);
    return stored ? *stored : paneDefault<std::int64_t>(key);
}

double Settings::boundReal(std::string_view key) const
{
    const auto stored = realNumber(key);
    return stored ? *stored : paneDefault<double>(key);
}

bool Settings::boundBoolean(std::string_view key) const
{
    const auto stored = booleanValue(key);
    return stored ? *stored : paneDefault<bool>(key);
}

std::string Settings::boundString(std::string_view key) const
{
    const auto stored = stringValue(key);
    return stored ? *stored : std::string(paneDefault<std::string_view>(key));
}

void Settings::setInteger(std::string_view key, std::int64_t value)
{
    userDefaults->setObject(key, {value});
}

void Settings::setReal(std::string_view key, double value)
{
    userDefaults->setObject(key, {value});
}

void Settings::setBoolean(std::string_view key, bool value)
{
    userDefaults->setObject(key, {value});
}

void Settings::setString(std::string_view key, std::string value)
{
    userDefaults->setObject(key, {std::move(value)});
}

void Settings::setData(std::string_view key, PropertyData value)
{
    userDefaults->setObject(key, {std::move(value)});
}

void Settings::setStringArray(std::string_view key, const std::vector<std::string>& value)
{
    PropertyArray array;
    array.reserve(value.size());
    for (const auto& text : value) {
        array.push_back({text});
    }
    userDefaults->setObject(key, {std::move(array)});
}

void Settings::setStringDictionary(std::string_view key, const std::map<std::string, std::string>& value)
{
    PropertyDictionary dictionary;
    for (const auto& [name, text] : value) {
        dictionary.emplace(name, PropertyValue{text});
    }
    userDefaults->setObject(key, {std::move(dictionary)});
}

void Settings::remove(std::string_view key)
{
    userDefaults->removeObject(key);
}

std::optional<PropertyValue> Settings::object(std::string_view key) const
{
    return userDefaults->object(key);
}

void Settings::restore(std::string_view key, std::optional<PropertyValue> value)
{
    if (value) {
        userDefaults->setObject(key, *std::move(value));
    } else {
        userDefaults->removeObject(key);
    }
}

} // namespace quorvel
