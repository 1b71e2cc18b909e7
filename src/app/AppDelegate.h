#pragma once

#include <memory>
#include <string>

#include "app/StatusMenu.h"
#include "base/WeakGuard.h"
#include "platform/StatusBar.h"
#include "preferences/AboutWindowController.h"

namespace quorvel {

struct Platform;
class GlobalEventBlocker;
class MainController;
class PermissionsOnboarding;
class SharedUpdater;

// What a delegate works with; all of it outlives the delegate.
struct AppDelegateEnvironment {
    const Platform& platform;
    GlobalEventBlocker& blocker;
    MainController* mainController = nullptr;
    PermissionsOnboarding& permissionsOnboarding;
    SharedUpdater& updater;
    std::string userGuideAddress; // empty for the installed guide
};

// Starts and ends the program and answers the menu of its status item.
class AppDelegate {
public:
    explicit AppDelegate(AppDelegateEnvironment environment);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;
    ~AppDelegate();

    // Shows the status item and, in a later turn of the main queue, sees to the permissions; once they are there, keys
    // are blocked by an event tap.
    void applicationDidFinishLaunching();

    // Gives the keyboard back.
    void applicationWillTerminate();

    void onShowAbout();

    // A missing main controller is a fatal error.
    void onShowPreferences() const;

    // Opens the user guide in the browser; nothing happens for an address that is none.
    void onShowGuide() const;

private:
    // The commands that this build offers; menu entries for others are disabled.
    MenuActions menuActions();
    std::string guideAddress() const;

    AppDelegateEnvironment environment;
    AboutWindowController aboutWindowController;
    std::unique_ptr<StatusItem> statusBarItem;
    WeakGuard weakly;
};

} // namespace quorvel
