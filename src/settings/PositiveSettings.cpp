#include "settings/PositiveSettings.h"

#include "settings/Settings.h"
#include "settings/SettingsTable.h"

namespace quorvel {

double positiveReal(const Settings& settings, std::string_view key)
{
    const auto stored = settings.real(key);
    return stored > 0.0 ? stored : std::get<double>(settingDefinition(key).readerFallback);
}

std::int64_t positiveInteger(const Settings& settings, std::string_view key)
{
    const auto stored = settings.integer(key);
    return stored > 0 ? stored : std::get<std::int64_t>(settingDefinition(key).readerFallback);
}

} // namespace quorvel
