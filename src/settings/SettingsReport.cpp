#include "settings/SettingsReport.h"

#include <fmt/format.h>

#include "platform/Log.h"
#include "platform/UserDefaults.h"
#include "settings/SettingTypes.h"
#include "settings/SettingsTable.h"

namespace quorvel {

void reportMistypedSettings(const UserDefaults& userDefaults, Log& log)
{
    for (const auto& setting : settingsTable()) {
        reportMistypedSetting(setting.key, userDefaults, log);
    }
}

void reportMistypedSetting(std::string_view key, const UserDefaults& userDefaults, Log& log)
{
    const auto* const setting = findSettingDefinition(key);
    const auto stored = setting != nullptr ? userDefaults.object(key) : std::nullopt;
    const auto mismatch = stored ? typeMismatch(*stored, setting->type) : std::nullopt;
    if (mismatch) {
        log.line(fmt::format("Setting \"{}\" holds {}", key, *mismatch));
    }
}

} // namespace quorvel
