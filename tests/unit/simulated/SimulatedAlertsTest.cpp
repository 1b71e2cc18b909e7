#include "platform/simulated/SimulatedAlerts.h"

#include <string>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "tests/support/FatalErrors.h"

namespace quorvel {
namespace {

class SimulatedAlertsTest : public testing::Test {
protected:
    const Alert alert{AlertStyle::warning, "Delete?", "It cannot be undone.", "", {"Delete", "Maybe", "Cancel"}};
    SimulatedDesktop desktop;
    SimulatedAlerts& alerts = desktop.alerts;
};

TEST_F(SimulatedAlertsTest, EachGetsTheAnswerThatWasGivenForItAndTheRestAreClosed)
{
    alerts.choose("Delete");
    alerts.choose("Maybe");

    EXPECT_EQ(alerts.runModal(alert), 0U);
    EXPECT_EQ(alerts.runModal(alert), 1U);
    EXPECT_EQ(alerts.runModal(alert), 2U);
    EXPECT_EQ(alerts.shown().size(), 3U);
    EXPECT_EQ(alerts.shown()[0], alert);
}

TEST_F(SimulatedAlertsTest, TheMainLoopRunsOnUnderAnAlert)
{
    int ran = 0;
    desktop.mainQueue.async([&] { ++ran; });
    alerts.choose("Delete", [&] { desktop.mainQueue.async([&] { ++ran; }); });

    alerts.runModal(alert);

    EXPECT_EQ(ran, 2);
}

TEST_F(SimulatedAlertsTest, AnAlertInATurnRunsTheRestOfThatTurnUnderIt)
{
    std::vector<std::string> notes;
    desktop.mainQueue.async([&] {
        alerts.runModal(alert);
        notes.emplace_back("alert closed");
    });
    desktop.mainQueue.async([&] { notes.emplace_back("other work"); });

    desktop.drain();

    EXPECT_EQ(notes, (std::vector<std::string>{"other work", "alert closed"}));
}

TEST_F(SimulatedAlertsTest, AnAnswerMustBeAButtonOfTheAlert)
{
    alerts.choose("Nonsense");

    EXPECT_EQ(fatalErrorOf([&] { alerts.runModal(alert); }), "The alert \"Delete?\" has no button \"Nonsense\"");
}

} // namespace
} // namespace quorvel
