#include "preferences/StartupLaunchManager.h"

namespace quorvel {

StartupLaunchManager::StartupLaunchManager(LoginItem* loginItem, Settings settings)
    : loginItem(loginItem), settings(settings)
{
    readStatus();
}

void StartupLaunchManager::setEnabled(bool requested)
{
    if (loginItem == nullptr) {
        return;
    }
    if (requested) {
        enable();
    } else {
        disable();
    }
    stateChanged.emit();
}

void StartupLaunchManager::refresh()
{
    readStatus();
    stateChanged.emit();
}

void StartupLaunchManager::enable()
{
    const auto registration = loginItem->registerItem();
    if (registration) {
        refusal.clear();
        readStatus();
    } else {
        refusal = registration.error();
        statusAtRefusal = loginItem->status();
        enabled = false;
        reason = refusal;
    }
    settings.setBoolean(userDefaultsKey, registration.has_value());
}

void StartupLaunchManager::disable()
{
    static_cast<void>(loginItem->unregisterItem()); // the next reading of the status tells what came of it
    enabled = false;
    refusal.clear();
    reason.clear();
    settings.setBoolean(userDefaultsKey, false);
}

void StartupLaunchManager::readStatus()
{
    const auto status = loginItem != nullptr ? loginItem->status() : LoginItemStatus::notRegistered;
    enabled = status == LoginItemStatus::enabled;
    if (enabled || status != statusAtRefusal) {
        refusal.clear();
    }
    reason =
        status == LoginItemStatus::requiresApproval ? "Approve Quorvel in the system’s list of login items." : refusal;
}

} // namespace quorvel
