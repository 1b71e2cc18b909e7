#include "preferences/PreferencesManager.h"

#include "preferences/PreferencesWindowController.h"
#include "preferences/SharedUpdater.h"

namespace quorvel {

PreferencesManager::PreferencesManager(const Platform& platform, SharedUpdater* updater)
    : platform(platform), updater(updater)
{}

PreferencesManager::~PreferencesManager() = default;

void PreferencesManager::show()
{
    if (!preferencesWindowController) {
        preferencesWindowController = std::make_unique<PreferencesWindowController>(
            platform, updater != nullptr ? updater->controller() : nullptr);
    }
    preferencesWindowController->showWindow();
}

std::optional<NotificationObject> PreferencesManager::windowObject() const
{
    return preferencesWindowController ? preferencesWindowController->windowObject() : std::nullopt;
}

} // namespace quorvel
