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
        const auto stored = userDefaults.object(setting.key);
        const auto mismatch = stored ? typeMismatch(*stored, setting.type) : std::nullopt;
        if (mismatch) {
            log.line(fmt::format("Setting \"{}\" holds {}", setting.key, *mismatch));
        }
    }
}

} // namespace quorvel
