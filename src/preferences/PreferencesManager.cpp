#include "preferences/PreferencesManager.h"

namespace quorvel {

PreferencesManager::PreferencesManager(PreferencesUi* preferencesUi) : preferencesUi(preferencesUi) {}

void PreferencesManager::show()
{
    if (!window && preferencesUi != nullptr) {
        window = preferencesUi->createWindow();
    }
    if (window) {
        window->show();
    }
}

std::optional<NotificationObject> PreferencesManager::windowObject() const
{
    if (!window) {
        return std::nullopt;
    }
    return window->notificationObject();
}

} // namespace quorvel
