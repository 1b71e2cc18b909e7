#include "system/PermissionsOnboarding.h"

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {
namespace {

constexpr auto openSettings = "Open System Settings";
constexpr auto step1 = "Step 1 of 2 — Accessibility";
constexpr auto step2 = "Step 2 of 2 — Input Monitoring";
constexpr auto restart = "Restart Quorvel";

class PermissionsOnboardingTest : public testing::Test {
protected:
    PermissionsOnboardingTest()
    {
        onboarding->setOnAllGranted([this] { ++allGrantedCount; });
    }

    std::vector<std::string> shownTitles() const
    {
        std::vector<std::string> titles;
        for (const auto& alert : desktop.alerts.shown()) {
            titles.push_back(alert.messageText);
        }
        return titles;
    }

    void answer(const char* button) { desktop.alerts.choose(button); }

    std::size_t checksWithin(double seconds)
    {
        desktop.journal.clear();
        desktop.advance(seconds);
        return desktop.journal.count("Permissions.isGranted");
    }

    SimulatedDesktop desktop;
    const Platform platform = desktop.platform();
    std::unique_ptr<PermissionsOnboarding> onboarding = std::make_unique<PermissionsOnboarding>(platform);
    int allGrantedCount = 0;
};

TEST_F(PermissionsOnboardingTest, WithBothPermissionsNothingIsAsked)
{
    onboarding->run();
    EXPECT_TRUE(desktop.alerts.shown().empty());
    EXPECT_EQ(allGrantedCount, 1);

    onboarding->run();
    EXPECT_EQ(allGrantedCount, 1);
}

TEST_F(PermissionsOnboardingTest, WithoutHandlerTheEndIsSilent)
{
    onboarding->setOnAllGranted(nullptr);
    onboarding->run();
    EXPECT_EQ(allGrantedCount, 0);
}

TEST_F(PermissionsOnboardingTest, TheAlertsReadAsAPersonExpects)
{
    desktop.permissions.deny(Permission::accessibility);
    desktop.permissions.deny(Permission::inputMonitoring);
    answer(openSettings);
    answer(openSettings);
    onboarding->run();
    desktop.permissions.grant(Permission::accessibility);
    desktop.advance(1.0);
    desktop.permissions.grant(Permission::inputMonitoring);
    desktop.advance(1.0);

    const std::vector<Alert> expected{
        {AlertStyle::informational,
         "Step 1 of 2 — Accessibility",
         "Quorvel needs Accessibility to move, resize and focus your windows and to run global shortcuts.\n\nClick "
         "“Open System Settings” and enable Quorvel under Accessibility. The status updates automatically when you’re "
         "done.",
         "ColorLogoTransparent",
         {"Open System Settings", "Later"}},
        {AlertStyle::informational,
         "Step 2 of 2 — Input Monitoring",
         "Quorvel needs Input Monitoring for keyboard handling in move/resize mode.\n\nClick “Open System Settings” "
         "and "
         "enable Quorvel under Input Monitoring. The status updates automatically when you’re done.",
         "ColorLogoTransparent",
         {"Open System Settings", "Later"}},
        {AlertStyle::informational,
         "Restart Quorvel",
         "Input Monitoring is enabled. Quorvel needs to restart to start using it.",
         "ColorLogoTransparent",
         {"Restart Now", "Later"}},
    };
    EXPECT_EQ(desktop.alerts.shown(), expected);
}

TEST_F(PermissionsOnboardingTest, EveryAlertComesToTheFront)
{
    desktop.permissions.deny(Permission::accessibility);
    desktop.permissions.deny(Permission::inputMonitoring);
    answer(openSettings);
    answer(openSettings);
    onboarding->run();
    desktop.permissions.grant(Permission::accessibility);
    desktop.advance(1.0);
    desktop.permissions.grant(Permission::inputMonitoring);
    desktop.advance(1.0);

    std::vector<std::string> expected;
    for (const std::string title : {step1, step2, restart}) {
        expected.insert(expected.end(), {"Workspace.activateSelf()", "Alerts.runModal(" + title + ")"});
    }
    EXPECT_EQ(desktop.journal.entries({"Workspace", "Alerts"}), expected);
}

TEST_F(PermissionsOnboardingTest, AccessibilityIsRequestedAndItsSettingsAreOpened)
{
    desktop.permissions.deny(Permission::accessibility);
    answer(openSettings);
    onboarding->run();
    EXPECT_EQ(
        desktop.journal.entries({"Permissions.request", "Permissions.openSettings"}),
        (std::vector<std::string>{"Permissions.request(accessibility)", "Permissions.openSettings(accessibility)"}));
}

TEST_F(PermissionsOnboardingTest, AGrantOfAccessibilityIsNoticedWithinASecond)
{
    desktop.permissions.deny(Permission::accessibility);
    answer(openSettings);
    onboarding->run();
    desktop.advance(10.0);
    EXPECT_EQ(allGrantedCount, 0);

    desktop.permissions.grant(Permission::accessibility);
    desktop.advance(0.5);
    EXPECT_EQ(allGrantedCount, 0);
    desktop.advance(0.5);
    EXPECT_EQ(allGrantedCount, 1);
    EXPECT_EQ(shownTitles(), (std::vector<std::string>{step1}));
    EXPECT_EQ(checksWithin(10.0), 0U);
}

TEST_F(PermissionsOnboardingTest, WithInputMonitoringMissingOnlyTheSecondStepAndTheRestartAreShown)
{
    desktop.permissions.deny(Permission::inputMonitoring);
    answer(openSettings);
    onboarding->run();
    EXPECT_EQ(shownTitles(), (std::vector<std::string>{step2}));
    EXPECT_EQ(desktop.journal.entries({"Permissions.request", "Permissions.openSettings"}),
              (std::vector<std::string>{"Permissions.request(inputMonitoring)",
                                        "Permissions.openSettings(inputMonitoring)"}));

    desktop.permissions.grant(Permission::inputMonitoring);
    desktop.advance(1.0);
    EXPECT_EQ(shownTitles(), (std::vector<std::string>{step2, restart}));
    EXPECT_EQ(allGrantedCount, 0);
    EXPECT_EQ(checksWithin(10.0), 0U);
}

TEST_F(PermissionsOnboardingTest, LaterInTheFirstStepAsksNothingMore)
{
    desktop.permissions.deny(Permission::accessibility);
    desktop.permissions.deny(Permission::inputMonitoring);
    answer("Later");
    onboarding->run();
    desktop.permissions.grant(Permission::accessibility);
    desktop.permissions.grant(Permission::inputMonitoring);
    desktop.advance(10.0);
    onboarding->run();
    EXPECT_EQ(shownTitles(), (std::vector<std::string>{step1}));
    EXPECT_EQ(allGrantedCount, 0);
    EXPECT_EQ(desktop.journal.count("Permissions.request"), 0U);
}

TEST_F(PermissionsOnboardingTest, LaterInTheSecondStepDropsTheHandler)
{
    desktop.permissions.deny(Permission::inputMonitoring);
    answer("Later");
    onboarding->run();
    desktop.permissions.grant(Permission::inputMonitoring);
    desktop.advance(10.0);
    onboarding->run();
    EXPECT_EQ(allGrantedCount, 0);
}

TEST_F(PermissionsOnboardingTest, RestartingStartsASecondInstanceAndEndsThisOneLater)
{
    desktop.permissions.deny(Permission::inputMonitoring);
    answer(openSettings);
    answer("Restart Now");
    onboarding->run();
    desktop.permissions.grant(Permission::inputMonitoring);
    std::size_t terminationsAtRelaunch = 1;
    desktop.journal.duringNext("Workspace.relaunch",
                               [&] { terminationsAtRelaunch = desktop.workspace.terminationRequests(); });
    desktop.advance(1.0);
    EXPECT_EQ(terminationsAtRelaunch, 0U);
    EXPECT_EQ(desktop.journal.entries({"Workspace.relaunch", "Workspace.terminate"}),
              (std::vector<std::string>{"Workspace.relaunch()", "Workspace.terminate()"}));
    EXPECT_EQ(allGrantedCount, 0);
}

TEST_F(PermissionsOnboardingTest, TheProgramEndsEvenIfNoSecondInstanceComesUp)
{
    desktop.workspace.failRelaunches();
    desktop.permissions.deny(Permission::inputMonitoring);
    answer(openSettings);
    answer("Restart Now");
    onboarding->run();
    desktop.permissions.grant(Permission::inputMonitoring);
    desktop.advance(1.0);
    EXPECT_EQ(desktop.workspace.relaunches(), 0U);
    EXPECT_EQ(desktop.workspace.terminationRequests(), 1U);
}

TEST_F(PermissionsOnboardingTest, TheStepsFollowEachOtherWithoutAClickOnceAPermissionIsThere)
{
    desktop.permissions.deny(Permission::accessibility);
    desktop.permissions.deny(Permission::inputMonitoring);
    answer(openSettings);
    onboarding->run();
    desktop.advance(2.0);
    EXPECT_EQ(shownTitles(), (std::vector<std::string>{step1}));
    desktop.permissions.grant(Permission::accessibility);
    desktop.advance(1.0);
    EXPECT_EQ(shownTitles(), (std::vector<std::string>{step1, step2}));
}

TEST_F(PermissionsOnboardingTest, AnAlertThatIsClosedCountsAsLater)
{
    desktop.permissions.deny(Permission::accessibility);
    onboarding->run(); // nobody answers
    EXPECT_EQ(shownTitles(), (std::vector<std::string>{step1}));
    EXPECT_EQ(desktop.journal.count("Permissions.request"), 0U);
    desktop.permissions.grant(Permission::accessibility);
    desktop.advance(10.0);
    EXPECT_EQ(allGrantedCount, 0);
}

TEST_F(PermissionsOnboardingTest, PostponingTheRestartEndsTheFlow)
{
    desktop.permissions.deny(Permission::inputMonitoring);
    answer(openSettings);
    answer("Later");
    onboarding->run();
    desktop.permissions.grant(Permission::inputMonitoring);
    desktop.advance(10.0);
    EXPECT_EQ(desktop.journal.count("Workspace.relaunch"), 0U);
    EXPECT_EQ(shownTitles(), (std::vector<std::string>{step2, restart}));
    EXPECT_EQ(allGrantedCount, 0);
}

TEST_F(PermissionsOnboardingTest, WithoutAPlaceForThePermissionTheWaitingGoesOn)
{
    desktop.permissions.deny(Permission::accessibility);
    desktop.permissions.loseSettings();
    answer(openSettings);
    onboarding->run();
    desktop.permissions.grant(Permission::accessibility);
    desktop.advance(1.0);
    EXPECT_EQ(allGrantedCount, 1);
}

TEST_F(PermissionsOnboardingTest, APermissionGivenUnderTheAlertIsNoticedAtTheFirstPoll)
{
    desktop.permissions.deny(Permission::accessibility);
    desktop.alerts.choose(openSettings, [this] { desktop.permissions.grant(Permission::accessibility); });
    onboarding->run();
    EXPECT_EQ(allGrantedCount, 0);
    desktop.advance(1.0);
    EXPECT_EQ(allGrantedCount, 1);
}

TEST_F(PermissionsOnboardingTest, ThereIsAtMostOnePoll)
{
    desktop.permissions.deny(Permission::accessibility);
    answer(openSettings);
    answer(openSettings);
    onboarding->run();
    onboarding->run();
    EXPECT_EQ(checksWithin(10.0), 10U);
}

TEST_F(PermissionsOnboardingTest, ThePollRestsWhileTheNextAlertIsUp)
{
    desktop.permissions.deny(Permission::accessibility);
    desktop.permissions.deny(Permission::inputMonitoring);
    answer(openSettings);
    desktop.alerts.choose("Later", [this] { desktop.advance(10.0); });
    onboarding->run();
    desktop.permissions.grant(Permission::accessibility);
    desktop.advance(1.0);
    EXPECT_EQ(shownTitles(), (std::vector<std::string>{step1, step2}));
}

TEST_F(PermissionsOnboardingTest, PostponingEndsAnEarlierPoll)
{
    desktop.permissions.deny(Permission::accessibility);
    desktop.permissions.deny(Permission::inputMonitoring);
    answer(openSettings);
    answer("Later");
    onboarding->run();
    onboarding->run();
    desktop.permissions.grant(Permission::accessibility);
    desktop.advance(10.0);
    EXPECT_EQ(shownTitles(), (std::vector<std::string>{step1, step1}));
}

TEST_F(PermissionsOnboardingTest, SuccessEndsAnEarlierPoll)
{
    desktop.permissions.deny(Permission::accessibility);
    answer(openSettings);
    onboarding->run();
    desktop.permissions.grant(Permission::accessibility);
    onboarding->run();
    EXPECT_EQ(allGrantedCount, 1);
    EXPECT_EQ(checksWithin(10.0), 0U);
}

TEST_F(PermissionsOnboardingTest, APollEndsWithTheOnboarding)
{
    desktop.permissions.deny(Permission::accessibility);
    answer(openSettings);
    onboarding->run();
    onboarding.reset();
    desktop.permissions.grant(Permission::accessibility);
    desktop.advance(10.0);
    EXPECT_EQ(allGrantedCount, 0);
    EXPECT_EQ(shownTitles(), (std::vector<std::string>{step1}));
}

} // namespace
} // namespace quorvel
