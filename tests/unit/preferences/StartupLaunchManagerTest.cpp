#include "preferences/StartupLaunchManager.h"

#include <optional>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {
namespace {

class StartupLaunchManagerTest : public testing::Test {
protected:
    StartupLaunchManager manager() { return StartupLaunchManager(&desktop.loginItem, settings); }

    std::optional<bool> mirrored() const { return settings.booleanValue("startAtLoginEnabled"); }

    SimulatedDesktop desktop;
    Settings settings{desktop.userDefaults};
};

TEST_F(StartupLaunchManagerTest, OnlyAnEnabledItemIsOnWhateverIsStored)
{
    for (const bool stored : {false, true}) {
        settings.setBoolean("startAtLoginEnabled", stored);
        for (const int status : {0, 1, 2, 3, 4, -1}) {
            desktop.loginItem.setStatus(static_cast<LoginItemStatus>(status));
            EXPECT_EQ(manager().isEnabled(), status == 1) << status;
        }
        EXPECT_EQ(mirrored(), stored);
    }
}

TEST_F(StartupLaunchManagerTest, SwitchingItOnIsMirroredInTheSettings)
{
    auto login = manager();
    login.setEnabled(true);
    EXPECT_TRUE(login.isEnabled());
    EXPECT_EQ(mirrored(), true);
    EXPECT_EQ(desktop.loginItem.status(), LoginItemStatus::enabled);
}

TEST_F(StartupLaunchManagerTest, AnItemThatNeedsApprovalIsOffThoughTheRequestIsKept)
{
    desktop.loginItem.requireApproval();
    auto login = manager();
    login.setEnabled(true);
    EXPECT_FALSE(login.isEnabled());
    EXPECT_EQ(mirrored(), true);
    EXPECT_FALSE(login.explanation().empty());
}

TEST_F(StartupLaunchManagerTest, ARefusedItemIsOffAndSaysWhy)
{
    desktop.loginItem.refuse("The session is managed.");
    auto login = manager();
    EXPECT_EQ(login.explanation(), "");
    login.setEnabled(true);
    EXPECT_FALSE(login.isEnabled());
    EXPECT_EQ(mirrored(), false);
    EXPECT_EQ(login.explanation(), "The session is managed.");
}

TEST_F(StartupLaunchManagerTest, SwitchingItOffIgnoresWhatComesOfIt)
{
    desktop.loginItem.setStatus(LoginItemStatus::enabled);
    auto login = manager();
    desktop.loginItem.refuse("The session is managed.");
    login.setEnabled(false);
    EXPECT_FALSE(login.isEnabled());
    EXPECT_EQ(mirrored(), false);
    EXPECT_EQ(login.explanation(), "");
    EXPECT_EQ(desktop.journal.entries({"LoginItem.unregisterItem"}).size(), 1U);
}

TEST_F(StartupLaunchManagerTest, SwitchingItOffTakesARefusalBack)
{
    auto login = manager();
    desktop.loginItem.refuse("The session is managed.");
    login.setEnabled(true);
    login.setEnabled(false);
    EXPECT_EQ(login.explanation(), "");
}

TEST_F(StartupLaunchManagerTest, ARefusalStaysUntilTheSessionsStateChanges)
{
    auto login = manager();
    desktop.loginItem.refuse("The session is managed.");
    login.setEnabled(true);
    login.refresh();
    EXPECT_EQ(login.explanation(), "The session is managed.");
    desktop.loginItem.setStatus(LoginItemStatus::notFound);
    login.refresh();
    EXPECT_EQ(login.explanation(), "");
    desktop.loginItem.setStatus(LoginItemStatus::notRegistered);
    login.refresh();
    EXPECT_EQ(login.explanation(), "");
}

TEST_F(StartupLaunchManagerTest, WhatTheSessionChangedShowsAfterARefresh)
{
    auto login = manager();
    int changes = 0;
    const auto observation = login.observe([&] { ++changes; });
    desktop.loginItem.setStatus(LoginItemStatus::enabled);
    EXPECT_FALSE(login.isEnabled());
    login.refresh();
    EXPECT_TRUE(login.isEnabled());
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(mirrored(), std::nullopt);
}

TEST_F(StartupLaunchManagerTest, EveryRequestIsAnnounced)
{
    auto login = manager();
    int changes = 0;
    const auto observation = login.observe([&] { ++changes; });
    login.setEnabled(true);
    login.setEnabled(false);
    EXPECT_EQ(changes, 2);
}

TEST_F(StartupLaunchManagerTest, WhereSessionsStartNoProgramsNothingHappens)
{
    StartupLaunchManager login(nullptr, settings);
    login.setEnabled(true);
    EXPECT_FALSE(login.isAvailable());
    EXPECT_FALSE(login.isEnabled());
    EXPECT_EQ(mirrored(), std::nullopt);
}

} // namespace
} // namespace quorvel
