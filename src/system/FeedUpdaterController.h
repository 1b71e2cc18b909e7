#pragma once

#include <cstddef>
#include <string>

#include "base/Subscription.h"
#include "base/WeakGuard.h"
#include "platform/Alerts.h"
#include "platform/HttpClient.h"
#include "platform/Updater.h"
#include "system/FeedUpdater.h"
#include "system/UpdateFeed.h"

namespace quorvel {

// Reads the feed when it is asked to and, if switched on, once a day, also when the program was not running at that
// time. Who asked is told whatever comes of it; a check of its own only speaks of a newer version, and one that failed
// is tried again an hour later. While somebody is being told, nothing is asked.
class FeedUpdaterController final : public UpdaterController {
public:
    explicit FeedUpdaterController(const FeedUpdaterEnvironment& environment);

    void checkForUpdates() override;
    bool automaticallyChecksForUpdates() const override;
    void setAutomaticallyChecksForUpdates(bool automatically) override;

private:
    enum class Asker { person, itself };

    void watchTheClock();
    void checkIfDue();
    bool isDue() const;
    void check(Asker asker);
    void finish(const HttpClient::Answer& answer);
    void offer(const UpdateFeedItem& item);
    void tell(std::string message, std::string information);
    std::size_t show(const Alert& alert);

    const FeedUpdaterEnvironment& environment;
    Subscription clock;
    Subscription request;
    Asker asker = Asker::itself;
    bool isTelling = false; // an alert is up, under which the main loop goes on
    WeakGuard weakly;
};

} // namespace quorvel
