#include "main/FeedUpdates.h"

#include <cstdlib>
#include <utility>

#include "app/BuildSettings.h"
#include "platform/Bundle.h"

namespace quorvel {

namespace {

std::string feedAddress()
{
    const char* const chosen = std::getenv("QUORVEL_UPDATE_FEED");
    return chosen != nullptr ? chosen : std::string(buildSettings::updateFeedAddress);
}

x11::SettingsFile storeFile()
{
    return x11::SettingsFile(x11::SettingsFile::defaultPath().parent_path() / "updates.plist");
}

} // namespace

std::unique_ptr<FeedUpdates> FeedUpdates::make(const Ports& ports, Report report)
{
    std::string address = feedAddress();
    return address.empty()
               ? nullptr
               : std::unique_ptr<FeedUpdates>(new FeedUpdates(ports, std::move(report), std::move(address)));
}

FeedUpdates::FeedUpdates(const Ports& ports, Report report, std::string address)
    : store(storeFile(), std::move(report)),
      webClient(x11::WebClient::standardFile(), ports.mainQueue),
      feedUpdater({webClient, ports.mainQueue, store, ports.alerts, ports.workspace, ports.dates, std::move(address),
                   ports.bundle.shortVersion(), "linux"})
{}

} // namespace quorvel
