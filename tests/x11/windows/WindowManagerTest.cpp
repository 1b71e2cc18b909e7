#include "platform/x11/windows/WindowManager.h"

#include <vector>

#include <gtest/gtest.h>

#include "x11/windows/AdapterDisplay.h"
#include "x11/windows/Announcer.h"

namespace quorvel::x11 {
namespace {

class WindowManagerTest : public testing::Test {
protected:
    bool isThere()
    {
        desktop.connection->sync();
        desktop.connection->dispatchEvents();
        return manager.supports(desktop.connection->atoms().netMoveresizeWindow);
    }

    AdapterDisplay desktop;
    WindowManager& manager = desktop.adapters.windowManager;
    Announcer announcer{desktop.display.server};
};

TEST_F(WindowManagerTest, OneThatIsStartedAnewIsAnotherOneEvenUnderItsOldNumber)
{
    EXPECT_FALSE(isThere());
    announcer.begin();
    announcer.announceOnItsWindow();
    ASSERT_TRUE(isThere());
    const auto first = manager.identity();
    announcer.end();
    EXPECT_FALSE(isThere());
    EXPECT_EQ(manager.identity(), 0U);
    announcer.begin();
    announcer.announceOnItsWindow();
    EXPECT_TRUE(isThere());
    EXPECT_NE(manager.identity(), first);
}

TEST_F(WindowManagerTest, OneThatAnnouncesItselfTwiceStaysTheSame)
{
    announcer.begin();
    announcer.announceOnItsWindow();
    ASSERT_TRUE(isThere());
    const auto first = manager.identity();
    announcer.announceOnItsWindow();
    EXPECT_TRUE(isThere());
    EXPECT_EQ(manager.identity(), first);
}

TEST_F(WindowManagerTest, OneThatIsSeenInTheMiddleOfItsStartIsThereOnceItHasStarted)
{
    announcer.begin();
    EXPECT_FALSE(isThere());
    announcer.announceOnItsWindow();
    EXPECT_TRUE(isThere());
}

TEST_F(WindowManagerTest, ThatItGoesAndThatOneComesIsTold)
{
    announcer.begin();
    announcer.announceOnItsWindow();
    ASSERT_TRUE(isThere());
    std::vector<bool> told;
    const auto observation = manager.observe([&] { told.push_back(manager.identity() != 0); });
    announcer.announceOnItsWindow(); // which changes nothing
    announcer.end();
    desktop.waitFor("the end to be told", [&] { return told == std::vector{false}; });
    announcer.begin();
    announcer.announceOnItsWindow();
    desktop.waitFor("the start to be told", [&] { return told == std::vector{false, true}; });
}

TEST(WindowManagerBarrierTest, OneThatAnswersLateIsAskedAgain)
{
    AdapterDisplay desktop;
    desktop.display.startWindowManager(xtest::WindowManager::openbox);
    const xtest::ClientProcess program(desktop.display.server, desktop.client(), xtest::ClientProcess::Kind::plain);
    desktop.display.windowManager().hold();
    desktop.place(AdapterDisplay::elementOf(program), {300.0, 200.0, 500.0, 400.0});
    EXPECT_FALSE(desktop.adapters.barrier.isSupported());
    desktop.display.windowManager().goOn();
    desktop.waitFor("the late answer", [&] { return desktop.adapters.barrier.isSupported(); });
}

} // namespace
} // namespace quorvel::x11
