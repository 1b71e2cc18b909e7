#include "system/FeedUpdater.h"

#include <optional>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "system/FeedUpdaterController.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr auto address = "https://example.org/appcast.xml";
constexpr double hour = 3600.0;

std::string feedWith(std::string_view version, std::string_view more = "")
{
    return "<rss><channel><item><version>" + std::string(version) + "</version>" + std::string(more) +
           "</item></channel></rss>";
}

class FeedUpdaterTest : public testing::Test {
protected:
    // The program's next run, with the clock going on.
    FeedUpdaterController& open()
    {
        controller.reset();
        controller.emplace(environment);
        desktop.drain();
        return *controller;
    }

    void pass(double hours)
    {
        for (double passed = 0.0; passed < hours; ++passed) {
            desktop.dates.today.secondsSince2001 += hour;
            desktop.advance(hour);
            desktop.drain();
        }
    }

    void serve(HttpClient::Answer answer) { desktop.httpClient.serve(address, std::move(answer)); }

    std::size_t requests() const { return desktop.journal.count("HttpClient.get("); }

    const std::vector<Alert>& alerts() const { return desktop.alerts.shown(); }

    SimulatedDesktop desktop;
    SimulatedUserDefaults store{desktop.journal, desktop.mainQueue};
    FeedUpdaterEnvironment environment{desktop.httpClient, desktop.mainQueue, store, desktop.alerts, desktop.workspace,
                                       desktop.dates,      address,           "1.2", "linux"};
    std::optional<FeedUpdaterController> controller;
};

TEST_F(FeedUpdaterTest, AsksNobodyUnlessToldTo)
{
    open();
    pass(48);
    EXPECT_EQ(requests(), 0U);
    EXPECT_EQ(desktop.mainQueue.pendingCount(), 0U);
}

TEST_F(FeedUpdaterTest, APersonIsToldThatNothingIsNewer)
{
    serve(feedWith("1.2"));
    open().checkForUpdates();
    EXPECT_THAT(alerts(), IsEmpty());
    desktop.drain();
    ASSERT_THAT(alerts(), SizeIs(1));
    EXPECT_EQ(alerts()[0].messageText, "Quorvel is up to date.");
    EXPECT_EQ(alerts()[0].informativeText, "You have version 1.2.");
    EXPECT_THAT(alerts()[0].buttons, ElementsAre("OK"));
}

TEST_F(FeedUpdaterTest, AnOlderVersionAndAnEmptyFeedAreNothingNewer)
{
    serve(feedWith("1.1"));
    open().checkForUpdates();
    desktop.drain();
    serve("<rss><channel/></rss>");
    controller->checkForUpdates();
    desktop.drain();
    ASSERT_THAT(alerts(), SizeIs(2));
    EXPECT_EQ(alerts()[1].messageText, "Quorvel is up to date.");
}

TEST_F(FeedUpdaterTest, AFeedOfBuildNumbersDoesNotAnnounceTheVersionThatRuns)
{
    serve(feedWith("120", "<shortVersionString>1.2</shortVersionString><link>https://example.org/get</link>"));
    open().checkForUpdates();
    desktop.drain();
    ASSERT_THAT(alerts(), SizeIs(1));
    EXPECT_EQ(alerts()[0].messageText, "Quorvel is up to date.");
}

TEST_F(FeedUpdaterTest, ANewerVersionLeadsToItsDownloadPage)
{
    serve(feedWith("130", "<shortVersionString>1.3</shortVersionString><link>https://example.org/get</link>"
                          "<pubDate>Wed, 01 Jan 2025 10:00:00 GMT</pubDate>"
                          "<releaseNotesLink>https://example.org/notes</releaseNotesLink>"));
    desktop.alerts.choose("Open Download Page");
    desktop.alerts.choose("Show Release Notes");
    open().checkForUpdates();
    desktop.drain();
    controller->checkForUpdates();
    desktop.drain();
    ASSERT_THAT(alerts(), SizeIs(2));
    EXPECT_EQ(alerts()[0].messageText, "A new version of Quorvel is available.");
    EXPECT_EQ(alerts()[0].informativeText, "Version 1.3 of Jan 1, 2025 is there; you have version 1.2.");
    EXPECT_THAT(alerts()[0].buttons, ElementsAre("Open Download Page", "Show Release Notes", "Later"));
    EXPECT_THAT(desktop.workspace.openedAddresses(),
                ElementsAre("https://example.org/get", "https://example.org/notes"));
}

TEST_F(FeedUpdaterTest, LaterOpensNothing)
{
    serve(feedWith("2", "<link>https://example.org/get</link>"));
    desktop.alerts.choose("Later");
    open().checkForUpdates();
    desktop.drain();
    EXPECT_THAT(desktop.workspace.openedAddresses(), IsEmpty());
}

TEST_F(FeedUpdaterTest, WithoutAPageThereIsNothingToOpen)
{
    serve(feedWith("2", "<link>file:///etc/passwd</link>"));
    open().checkForUpdates();
    desktop.drain();
    ASSERT_THAT(alerts(), SizeIs(1));
    EXPECT_THAT(alerts()[0].buttons, ElementsAre("OK"));
    EXPECT_THAT(desktop.workspace.openedAddresses(), IsEmpty());
}

TEST_F(FeedUpdaterTest, APersonIsToldWhyACheckFailed)
{
    open().checkForUpdates();
    desktop.drain();
    serve("<html/>");
    controller->checkForUpdates();
    desktop.drain();
    ASSERT_THAT(alerts(), SizeIs(2));
    EXPECT_EQ(alerts()[0].messageText, "Quorvel could not check for updates.");
    EXPECT_EQ(alerts()[0].informativeText, "The reason: the server answered 404 Not Found.");
    EXPECT_THAT(alerts()[1].informativeText, HasSubstr("not an update feed"));
}

TEST_F(FeedUpdaterTest, SwitchedOnItChecksAtOnceAndThenOnceADay)
{
    serve(feedWith("1.2"));
    open().setAutomaticallyChecksForUpdates(true);
    desktop.drain();
    EXPECT_EQ(requests(), 1U);
    pass(23);
    EXPECT_EQ(requests(), 1U);
    pass(1);
    EXPECT_EQ(requests(), 2U);
    pass(24 * 10);
    EXPECT_EQ(requests(), 12U);
    EXPECT_THAT(alerts(), IsEmpty());
}

TEST_F(FeedUpdaterTest, ACheckOfItsOwnSpeaksOfANewerVersionOnly)
{
    open().setAutomaticallyChecksForUpdates(true);
    desktop.drain();
    EXPECT_THAT(alerts(), IsEmpty()); // a missing feed
    serve(feedWith("1.3"));
    pass(1);
    ASSERT_THAT(alerts(), SizeIs(1));
    EXPECT_EQ(alerts()[0].messageText, "A new version of Quorvel is available.");
}

TEST_F(FeedUpdaterTest, TheDayGoesOnWhileTheProgramDoesNotRun)
{
    serve(feedWith("1.2"));
    open().setAutomaticallyChecksForUpdates(true);
    desktop.drain();
    desktop.dates.today.secondsSince2001 += 10 * hour;
    open();
    EXPECT_EQ(requests(), 1U);
    desktop.dates.today.secondsSince2001 += 14 * hour;
    open();
    EXPECT_EQ(requests(), 2U);
}

TEST_F(FeedUpdaterTest, AClockThatWentBackDoesNotStopTheChecks)
{
    serve(feedWith("1.2"));
    open().setAutomaticallyChecksForUpdates(true);
    desktop.drain();
    desktop.dates.today.secondsSince2001 -= 1000 * hour;
    pass(1);
    EXPECT_EQ(requests(), 2U);
}

TEST_F(FeedUpdaterTest, SwitchedOffItRestsAndKeepsThatForTheNextRun)
{
    serve(feedWith("1.2"));
    open().setAutomaticallyChecksForUpdates(true);
    desktop.drain();
    controller->setAutomaticallyChecksForUpdates(false);
    pass(48);
    EXPECT_EQ(requests(), 1U);
    EXPECT_EQ(desktop.mainQueue.pendingCount(), 0U);
    EXPECT_FALSE(open().automaticallyChecksForUpdates());
    EXPECT_THAT(desktop.userDefaults.contents(), IsEmpty());
}

TEST_F(FeedUpdaterTest, APersonWhoAsksDuringACheckIsToldItsResult)
{
    serve(feedWith("1.2"));
    open().setAutomaticallyChecksForUpdates(true);
    desktop.turn(); // asks; the answer comes in the next turn
    EXPECT_EQ(requests(), 1U);
    controller->checkForUpdates();
    desktop.drain();
    EXPECT_EQ(requests(), 1U);
    EXPECT_THAT(alerts(), SizeIs(1));
}

TEST_F(FeedUpdaterTest, NothingIsAskedWhileAnAlertIsUp)
{
    serve(feedWith("2", "<link>https://example.org/get</link>"));
    open().setAutomaticallyChecksForUpdates(true);
    desktop.alerts.choose("Later", [&] {
        pass(48);
        controller->checkForUpdates();
        desktop.drain();
    });
    desktop.drain();
    EXPECT_EQ(requests(), 1U);
    EXPECT_THAT(alerts(), SizeIs(1));
    pass(1);
    EXPECT_THAT(alerts(), SizeIs(2)) << "the day is over, and the alert is answered";
}

TEST_F(FeedUpdaterTest, AnAnswerAfterTheEndIsDropped)
{
    serve(feedWith("2"));
    open().checkForUpdates();
    controller.reset();
    desktop.drain();
    EXPECT_THAT(alerts(), IsEmpty());
}

} // namespace
} // namespace quorvel
