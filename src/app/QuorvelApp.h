#pragma once

#include <string>

#include "app/AppDelegate.h"
#include "app/BuildSettings.h"
#include "app/MainController.h"
#include "preferences/SharedUpdater.h"
#include "system/GlobalEventBlocker.h"
#include "system/PermissionsOnboarding.h"

namespace quorvel {

struct Platform;

// The whole portable program over one platform. Hot keys work from its construction on; a composition root then calls
// the delegate's applicationDidFinishLaunching(), runs the main loop, and calls applicationWillTerminate() at its end.
class QuorvelApp {
public:
    // `platform` outlives the program and the work that it leaves on the main queue. An empty address stands for the
    // installed guide.
    explicit QuorvelApp(const Platform& platform,
                        std::string userGuideAddress = std::string(buildSettings::userGuideAddress));
    explicit QuorvelApp(const Platform&& platform, std::string userGuideAddress = {}) = delete;
    QuorvelApp(const QuorvelApp&) = delete;
    QuorvelApp& operator=(const QuorvelApp&) = delete;

    AppDelegate& appDelegate() { return delegate; }
    MainController& mainController() { return controller; }
    GlobalEventBlocker& blocker() { return eventBlocker; }

private:
    PermissionsOnboarding permissionsOnboarding;
    SharedUpdater updater;
    GlobalEventBlocker eventBlocker;
    MainController controller;
    AppDelegate delegate;
};

} // namespace quorvel
