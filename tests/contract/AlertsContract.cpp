#include "contract/ContractTest.h"
#include "contract/SessionVerbs.h"
#include "platform/Alerts.h"
#include "platform/MainQueue.h"

namespace quorvel::contract {
namespace {

class AlertsContract : public ContractTest {
protected:
    const Alert alert{.style = AlertStyle::warning,
                      .messageText = "Reset Keyboard Shortcuts",
                      .informativeText = "This will reset all shortcuts.",
                      .iconName = {},
                      .buttons = {"Reset", "Ask Later", "Cancel"}};
    Alerts& alerts = port(&ContractPorts::alerts);
    SessionVerbs& session = port(&ContractPorts::session);
};

TEST_F(AlertsContract, TheFirstButtonIsTheDefaultOne)
{
    session.answerNextAlert(AlertAnswer::defaultButton);

    EXPECT_EQ(alerts.runModal(alert), 0U);
}

TEST_F(AlertsContract, ClosingIsTheLastButton)
{
    session.answerNextAlert(AlertAnswer::close);

    EXPECT_EQ(alerts.runModal(alert), 2U);
}

TEST_F(AlertsContract, TheMainLoopRunsWhileAnAlertIsShown)
{
    bool hasRun = false;
    port(&ContractPorts::mainQueue).async([&] { hasRun = true; });
    session.answerNextAlert(AlertAnswer::defaultButton);

    alerts.runModal(alert);

    EXPECT_TRUE(hasRun);
}

} // namespace
} // namespace quorvel::contract
