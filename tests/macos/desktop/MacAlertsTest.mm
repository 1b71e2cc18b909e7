#include "platform/macos/desktop/MacAlerts.h"

#include <gtest/gtest.h>

#include "contract/macos/BundleFolder.h"
#include "macos/fakes/DisplayServer.h"
#include "macos/fakes/FakeDesktop.h"

namespace quorvel::macos {
namespace {

class MacAlertsTest : public testing::Test {
protected:
    MacAlertsTest() { fakes::startDisplayServer(); }

    const Alert step{.style = AlertStyle::informational,
                     .messageText = "Step 1 of 2 — Accessibility",
                     .informativeText = "Click “Open System Settings”.\n\nThat’s all.",
                     .iconName = "ColorLogoTransparent",
                     .buttons = {"Open System Settings", "Later"}};
    contract::BundleFolder folder;
    SimulatedDesktop desktop;
    fakes::FakeDesktop fake{desktop};
    MacAlerts alerts{folder.bundle()};
};

TEST_F(MacAlertsTest, AnAlertShowsItsTextsItsIconAndItsButtonsInOrder)
{
    alerts.runModal(step);

    EXPECT_EQ(desktop.alerts.shown(), std::vector{step});
}

TEST_F(MacAlertsTest, AWarningIsOne)
{
    const Alert warning{.style = AlertStyle::warning,
                        .messageText = "Reset",
                        .informativeText = "All of it.",
                        .iconName = {},
                        .buttons = {"OK"}};

    alerts.runModal(warning);

    EXPECT_EQ(desktop.alerts.shown(), std::vector{warning});
}

TEST_F(MacAlertsTest, EachButtonHasItsIndex)
{
    desktop.alerts.choose("Open System Settings");
    desktop.alerts.choose("Later");

    EXPECT_EQ(alerts.runModal(step), 0U);
    EXPECT_EQ(alerts.runModal(step), 1U);
}

} // namespace
} // namespace quorvel::macos
