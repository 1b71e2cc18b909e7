#include "preferences/PreferencesManager.h"

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {
namespace {

TEST(PreferencesManager, TheWindowIsMadeOnTheFirstRequest)
{
    SimulatedDesktop desktop;
    const auto platform = desktop.platform();
    PreferencesManager manager(platform, nullptr);
    EXPECT_EQ(desktop.preferencesUi.createdWindows(), 0U);
    EXPECT_FALSE(manager.windowObject());
    manager.show();
    EXPECT_TRUE(desktop.preferencesUi.isWindowVisible());
    EXPECT_TRUE(manager.windowObject());
}

TEST(PreferencesManager, LaterRequestsShowTheSameWindow)
{
    SimulatedDesktop desktop;
    const auto platform = desktop.platform();
    PreferencesManager manager(platform, nullptr);
    manager.show();
    const auto first = manager.windowObject();
    desktop.preferencesUi.closeWindows();
    EXPECT_FALSE(desktop.preferencesUi.isWindowVisible());
    manager.show();
    EXPECT_TRUE(desktop.preferencesUi.isWindowVisible());
    EXPECT_EQ(desktop.preferencesUi.createdWindows(), 1U);
    EXPECT_EQ(manager.windowObject(), first);
}

TEST(PreferencesManager, AWindowThatCannotBeMadeIsTriedAgain)
{
    SimulatedDesktop desktop;
    const auto platform = desktop.platform();
    desktop.preferencesUi.refuseWindows();
    PreferencesManager manager(platform, nullptr);
    manager.show();
    manager.show();
    EXPECT_FALSE(manager.windowObject());
    EXPECT_EQ(desktop.journal.count("PreferencesUi.createWindow"), 2U);
}

TEST(PreferencesManager, ABuildWithoutPreferencesShowsNone)
{
    SimulatedDesktop desktop;
    auto platform = desktop.platform();
    platform.preferencesUi = nullptr;
    PreferencesManager manager(platform, nullptr);
    manager.show();
    EXPECT_FALSE(manager.windowObject());
}

} // namespace
} // namespace quorvel
