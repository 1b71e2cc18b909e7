#include "preferences/PreferencesManager.h"

#include "preferences/PreferencesWindowController.h"

namespace quorvel {

PreferencesManager::PreferencesManager(const Platform& platform) : platform(platform) {}

PreferencesManager::~PreferencesManager() = default;

void PreferencesManager::show()
{
    if (!preferencesWindowController) {
        preferencesWindowController = std::make_unique<PreferencesWindowController>(platform);
    }
    preferencesWindowController->showWindow();
}

std::optional<NotificationObject> PreferencesManager::windowObject() const
{
    return preferencesWindowController ? preferencesWindowController->windowObject() : std::nullopt;
}

} // namespace quorvel
