#include "preferences/PreferencesWindowController.h"

#include "platform/Platform.h"

namespace quorvel {

PreferencesWindowController::PreferencesWindowController(const Platform& platform, UpdaterController* updater)
    : platform(platform), container(platform, updater)
{}

void PreferencesWindowController::showWindow()
{
    if (!window && platform.preferencesUi != nullptr) {
        window = platform.preferencesUi->createWindow(*this);
    }
    if (window) {
        container.willAppear();
        window->show();
    }
}

std::optional<NotificationObject> PreferencesWindowController::windowObject() const
{
    return window ? std::optional(window->notificationObject()) : std::nullopt;
}

PreferencesWindowContent PreferencesWindowController::content()
{
    return {
        .title = "Preferences",
        .iconName = "ColorLogoTransparent",
        .size = {1050.0, 785.0},
        .minimumSize = {950.0, 705.0},
        .tabs = container.tabs(),
    };
}

void PreferencesWindowController::selectTab(std::size_t tab)
{
    container.selectTab(tab);
}

void PreferencesWindowController::windowDidBecomeActive()
{
    container.windowDidBecomeActive();
}

void PreferencesWindowController::windowWillClose()
{
    container.didDisappear();
    platform.notificationCenter.post(notificationNames::preferencesWillClose, noNotificationObject);
}

} // namespace quorvel
