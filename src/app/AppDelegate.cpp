#include "app/AppDelegate.h"

#include <utility>

#include "app/MainController.h"
#include "base/FatalError.h"
#include "platform/Bundle.h"
#include "platform/MainQueue.h"
#include "platform/Platform.h"
#include "platform/Workspace.h"
#include "preferences/SharedUpdater.h"
#include "settings/SettingsReport.h"
#include "system/GlobalEventBlocker.h"
#include "system/PermissionsOnboarding.h"

namespace quorvel {

AppDelegate::AppDelegate(AppDelegateEnvironment environment)
    : environment(std::move(environment)), aboutWindowController(this->environment.platform)
{}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching()
{
    const auto& platform = environment.platform;
    reportMistypedSettings(platform.userDefaults, platform.log);
    statusBarItem = platform.statusBar.createItem();
    if (statusBarItem->hasButton()) {
        if (auto image = platform.bundle.image("MenuBarIcon")) {
            image->isTemplate = true;
            statusBarItem->setImage(*image);
        }
    }
    const auto actions = menuActions();
    statusBarItem->setMenu(statusMenu(actions), [actions](MenuCommand command) {
        if (const auto action = actions.find(command); action != actions.end()) {
            action->second();
        }
    });
    platform.mainQueue.async(weakly.guard([this] {
        environment.permissionsOnboarding.setOnAllGranted(weakly.guard([this] { environment.blocker.start(); }));
        environment.permissionsOnboarding.run();
    }));
}

void AppDelegate::applicationWillTerminate()
{
    environment.blocker.stop();
}

void AppDelegate::onShowAbout()
{
    aboutWindowController.showWindow();
}

void AppDelegate::onShowPreferences() const
{
    if (environment.mainController == nullptr) {
        fatalError("There is no main controller to open the preferences");
    }
    environment.mainController->openPreferences();
}

void AppDelegate::onShowGuide() const
{
    environment.platform.workspace.open(guideAddress());
}

MenuActions AppDelegate::menuActions()
{
    const auto& platform = environment.platform;
    MenuActions actions;
    if (auto* updater = environment.updater.controller()) {
        actions.emplace(MenuCommand::checkForUpdates, [updater] { updater->checkForUpdates(); });
    }
    if (platform.preferencesUi != nullptr) {
        actions.emplace(MenuCommand::showAbout, weakly.guard([this] { onShowAbout(); }));
        actions.emplace(MenuCommand::showPreferences, weakly.guard([this] { onShowPreferences(); }));
    }
    if (!guideAddress().empty()) {
        actions.emplace(MenuCommand::showGuide, weakly.guard([this] { onShowGuide(); }));
    }
    actions.emplace(MenuCommand::terminate, [&workspace = platform.workspace] { workspace.terminate(); });
    return actions;
}

std::string AppDelegate::guideAddress() const
{
    return environment.userGuideAddress.empty() ? environment.platform.bundle.userGuideAddress()
                                                : environment.userGuideAddress;
}

} // namespace quorvel
