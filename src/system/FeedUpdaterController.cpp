#include "system/FeedUpdaterController.h"

#include <utility>

#include <fmt/format.h>

#include "platform/Dates.h"
#include "platform/MainQueue.h"
#include "platform/Workspace.h"
#include "settings/Settings.h"
#include "system/VersionOrder.h"

namespace quorvel {

namespace {

constexpr std::string_view automaticChecks = "automaticallyChecksForUpdates";
constexpr std::string_view lastCheck = "lastUpdateCheck"; // seconds since 2001
constexpr std::chrono::duration<double> hour{3600.0};
constexpr double day = 86'400.0;

} // namespace

FeedUpdaterController::FeedUpdaterController(const FeedUpdaterEnvironment& environment) : environment(environment)
{
    if (automaticallyChecksForUpdates()) {
        watchTheClock();
    }
}

void FeedUpdaterController::checkForUpdates()
{
    check(Asker::person);
}

bool FeedUpdaterController::automaticallyChecksForUpdates() const
{
    return Settings(environment.store).boolean(automaticChecks);
}

void FeedUpdaterController::setAutomaticallyChecksForUpdates(bool automatically)
{
    Settings(environment.store).setBoolean(automaticChecks, automatically);
    clock.reset();
    if (automatically) {
        watchTheClock();
    }
}

void FeedUpdaterController::watchTheClock()
{
    // Timers stand still while the machine sleeps, so the date decides.
    clock = environment.mainQueue.repeat(hour, weakly.guard([this] { checkIfDue(); }));
    environment.mainQueue.async(weakly.guard([this] { checkIfDue(); }));
}

void FeedUpdaterController::checkIfDue()
{
    if (automaticallyChecksForUpdates() && isDue()) {
        check(Asker::itself);
    }
}

bool FeedUpdaterController::isDue() const
{
    const auto last = Settings(environment.store).realNumber(lastCheck);
    const double now = environment.dates.now().secondsSince2001;
    return !last || *last > now || now - *last >= day; // one in the future comes from a clock that was wrong
}

void FeedUpdaterController::check(Asker who)
{
    if (isTelling) {
        return;
    }
    if (who == Asker::person) {
        asker = who;
    }
    if (!request.isActive()) {
        request = environment.httpClient.get(
            environment.feedAddress, weakly.guard([this](const HttpClient::Answer& answer) { finish(answer); }));
    }
}

void FeedUpdaterController::finish(const HttpClient::Answer& answer)
{
    request.reset();
    const bool isAwaited = std::exchange(asker, Asker::itself) == Asker::person;
    const auto items = answer
                           ? parseUpdateFeed(*answer, environment.system)
                           : std::expected<std::vector<UpdateFeedItem>, std::string>(std::unexpected(answer.error()));
    if (items) {
        Settings(environment.store).setReal(lastCheck, environment.dates.now().secondsSince2001);
    } else if (isAwaited) {
        tell("Quorvel could not check for updates.", fmt::format("The reason: {}.", items.error()));
    }
    if (!items) {
        return;
    }
    const auto newest = newestItem(*items);
    if (newest && compareVersions(newest->shortVersion, environment.version) > 0) {
        offer(*newest);
    } else if (isAwaited) {
        tell("Quorvel is up to date.", fmt::format("You have version {}.", environment.version));
    }
}

void FeedUpdaterController::offer(const UpdateFeedItem& item)
{
    const std::string when = item.date ? " of " + environment.dates.mediumText(*item.date) : std::string();
    Alert alert;
    alert.messageText = "A new version of Quorvel is available.";
    alert.informativeText =
        fmt::format("Version {}{} is there; you have version {}.", item.shortVersion, when, environment.version);
    std::vector<std::string> addresses;
    if (!item.link.empty()) {
        alert.buttons.emplace_back("Open Download Page");
        addresses.push_back(item.link);
    }
    if (!item.notesLink.empty()) {
        alert.buttons.emplace_back("Show Release Notes");
        addresses.push_back(item.notesLink);
    }
    alert.buttons.emplace_back(addresses.empty() ? "OK" : "Later");
    const auto button = show(alert);
    if (button < addresses.size()) {
        environment.workspace.open(addresses[button]);
    }
}

void FeedUpdaterController::tell(std::string message, std::string information)
{
    show({AlertStyle::informational, std::move(message), std::move(information), {}, {"OK"}});
}

std::size_t FeedUpdaterController::show(const Alert& alert)
{
    isTelling = true;
    const auto button = environment.alerts.runModal(alert);
    isTelling = false;
    return button;
}

} // namespace quorvel
