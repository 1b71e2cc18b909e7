#include "preferences/PreferencesWindowController.h"

#include "platform/Platform.h"

namespace quorvel {

void PreferencesWindowController::showWindow()
{
    if (!window && platform.preferencesUi != nullptr) {
        window = platform.preferencesUi->createWindow(*this);
    }
    if (window) {
        window->show();
    }
}

std::optional<NotificationObject> PreferencesWindowController::windowObject() const
{
    return window ? std::optional(window->notificationObject()) : std::nullopt;
}

PreferencesWindowContent PreferencesWindowController::content() const
{
    return {
        .title = "Preferences",
        .iconName = "ColorLogoTransparent",
        .size = {1050.0, 785.0},
        .minimumSize = {950.0, 705.0},
        .tabs = {},
    };
}

void PreferencesWindowController::selectTab(std::size_t tab)
{
    selected = tab;
}

void PreferencesWindowController::windowDidBecomeActive() {}

void PreferencesWindowController::windowWillClose()
{
    platform.notificationCenter.post(notificationNames::preferencesWillClose, noNotificationObject);
}

} // namespace quorvel
