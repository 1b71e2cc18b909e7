#include "settings/ForeignChanges.h"

#include <algorithm>

#include "platform/NotificationCenter.h"
#include "settings/SettingsReport.h"
#include "settings/ShortcutSettings.h"

namespace quorvel {

void handleForeignChanges(const std::set<std::string>& keys, const UserDefaults& userDefaults,
                          NotificationCenter& notificationCenter, Log& log)
{
    for (const auto& key : keys) {
        reportMistypedSetting(key, userDefaults, log);
    }
    if (std::ranges::any_of(keys, isShortcutKey)) {
        notificationCenter.post(notificationNames::shortcutDidChange, noNotificationObject);
    }
}

} // namespace quorvel
