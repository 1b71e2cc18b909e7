#pragma once

#include <string>

#include "platform/Updater.h"

namespace quorvel {

class Alerts;
class Dates;
class HttpClient;
class MainQueue;
class UserDefaults;
class Workspace;

// What updates by a feed are made of; all of it outlives the updater and its controllers.
struct FeedUpdaterEnvironment {
    HttpClient& httpClient;
    MainQueue& mainQueue;
    UserDefaults& store; // keeps whether and when it checks by itself; not the settings
    Alerts& alerts;
    Workspace& workspace;
    Dates& dates;
    std::string feedAddress;
    std::string version; // the short one of this program
    std::string system;  // as feeds name the one that this program runs on
};

// An updater that reads a feed of versions and leads to the download page of a newer one.
class FeedUpdater final : public Updater {
public:
    explicit FeedUpdater(FeedUpdaterEnvironment environment);

    std::unique_ptr<UpdaterController> createController() override;

private:
    FeedUpdaterEnvironment environment;
};

} // namespace quorvel
