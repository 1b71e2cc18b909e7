#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/x11/desktop/WebClient.h"
#include "platform/x11/settings/PlistUserDefaults.h"
#include "system/FeedUpdater.h"

namespace quorvel {

class Alerts;
class Bundle;
class Dates;
class MainQueue;
class Workspace;

// Updates by a feed with all that they need of their own. Whether and when the program checks by itself is kept in
// "updates.plist" beside the settings.
class FeedUpdates {
public:
    struct Ports {
        MainQueue& mainQueue;
        Alerts& alerts;
        Workspace& workspace;
        Dates& dates;
        const Bundle& bundle;
    };
    using Report = std::function<void(std::string_view line)>;

    // Null where this build has no feed. $QUORVEL_UPDATE_FEED, where set, names another one.
    static std::unique_ptr<FeedUpdates> make(const Ports& ports, Report report);

    Updater& updater() { return feedUpdater; }

private:
    FeedUpdates(const Ports& ports, Report report, std::string address);

    x11::PlistUserDefaults store;
    x11::WebClient webClient;
    FeedUpdater feedUpdater;
};

} // namespace quorvel
