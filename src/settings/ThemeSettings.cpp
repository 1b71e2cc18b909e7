#include "settings/ThemeSettings.h"

#include <cstdint>
#include <string_view>
#include <utility>
#include <variant>

#include "settings/Settings.h"
#include "settings/SettingsTable.h"
#include "settings/ThemeKind.h"

namespace quorvel {

namespace {

void read(const Settings& settings, std::string_view key, std::string& target)
{
    target = settings.boundString(key);
}

void read(const Settings& settings, std::string_view key, double& target)
{
    target = settings.boundReal(key);
}

void read(const Settings& settings, std::string_view key, bool& target)
{
    target = settings.boundBoolean(key);
}

void read(const Settings& settings, std::string_view key, std::int64_t& target)
{
    target = settings.boundInteger(key);
}

void write(Settings& settings, std::string_view key, std::string_view value)
{
    settings.setString(key, std::string(value));
}

void write(Settings& settings, std::string_view key, double value)
{
    settings.setReal(key, value);
}

void write(Settings& settings, std::string_view key, bool value)
{
    settings.setBoolean(key, value);
}

void write(Settings& settings, std::string_view key, std::int64_t value)
{
    settings.setInteger(key, value);
}

template <class Record, class Value>
bool isApplicable(const ThemeField<Record, Value>&, const Value&)
{
    return true;
}

template <class Record>
bool isApplicable(const ThemeField<Record, std::string>& field, const std::string& value)
{
    return field.isKnown == nullptr || field.isKnown(value);
}

template <class Record, class Value>
void writeDefault(Settings& settings, const ThemeField<Record, Value>& field)
{
    write(settings, field.settingsKey, std::get<Value>(settingDefinition(field.settingsKey).paneDefault));
}

template <class Record>
void writeDefault(Settings& settings, const ThemeField<Record, std::string>& field)
{
    write(settings, field.settingsKey, std::get<std::string_view>(settingDefinition(field.settingsKey).paneDefault));
}

} // namespace

template <class Record>
Record captureTheme(const Settings& settings, std::string name, Date now)
{
    Record theme;
    theme.id = Uuid::random();
    theme.name = name.empty() ? std::string("Untitled") : std::move(name);
    forEachThemeField<Record>([&](const auto& field) { read(settings, field.settingsKey, theme.*field.member); });
    theme.createdAt = now;
    theme.updatedAt = now;
    return theme;
}

template <class Record>
void applyTheme(const Record& theme, Settings& settings)
{
    forEachThemeField<Record>([&](const auto& field) {
        if (isApplicable(field, theme.*field.member)) {
            write(settings, field.settingsKey, theme.*field.member);
        }
    });
}

template <class Record>
void resetThemedSettings(Settings& settings)
{
    forEachThemeField<Record>([&](const auto& field) { writeDefault(settings, field); });
}

template Theme captureTheme(const Settings&, std::string, Date);
template SwitcherTheme captureTheme(const Settings&, std::string, Date);
template MoveResizeTheme captureTheme(const Settings&, std::string, Date);
template void applyTheme(const Theme&, Settings&);
template void applyTheme(const SwitcherTheme&, Settings&);
template void applyTheme(const MoveResizeTheme&, Settings&);
template void resetThemedSettings<Theme>(Settings&);
template void resetThemedSettings<SwitcherTheme>(Settings&);
template void resetThemedSettings<MoveResizeTheme>(Settings&);

} // namespace quorvel
