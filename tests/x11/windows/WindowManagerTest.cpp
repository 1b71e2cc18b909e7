#include "platform/x11/windows/WindowManager.h"

#include <vector>

#include <gtest/gtest.h>

#include "x11/windows/AdapterDisplay.h"

namespace quorvel::x11 {
namespace {

// A window manager as others see it, whose successor always gets its window number.
class Announcer {
public:
    explicit Announcer(const xtest::XServer& server) : client(server), window(xcb_generate_id(client.connection())) {}

    void begin()
    {
        xcb_create_window(client.connection(), 0, window, client.root(), -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                          XCB_COPY_FROM_PARENT, 0, nullptr);
        client.setProperty(client.root(), "_NET_SUPPORTED", XCB_ATOM_ATOM, {client.atom("_NET_MOVERESIZE_WINDOW")});
        announce(client.root());
    }

    // Some do this the other way round.
    void announceOnItsWindow() { announce(window); }

    void end()
    {
        xcb_destroy_window(client.connection(), window);
        client.sync();
    }

private:
    void announce(xcb_window_t where)
    {
        client.setProperty(where, "_NET_SUPPORTING_WM_CHECK", XCB_ATOM_WINDOW, {window});
        client.sync();
    }

    xtest::XClient client;
    xcb_window_t window;
};

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
