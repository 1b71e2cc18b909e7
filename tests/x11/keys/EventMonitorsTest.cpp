#include <gtest/gtest.h>

#include "x11/keys/KeysDisplay.h"

namespace quorvel::x11 {
namespace {

class EventMonitorsTest : public testing::Test {
protected:
    void click(std::uint8_t button = 1) { desktop.display.keyboard.click(600, 700, button); }

    KeysDisplay desktop;
    int presses = 0;
    Subscription monitor = desktop.adapters.eventMonitors.addGlobalMouseDownMonitor([this] { ++presses; });
};

TEST_F(EventMonitorsTest, EachClickIsSeenOnceWithWhateverButton)
{
    click(1);
    click(3);
    click(2);
    click(8);
    desktop.waitFor("the clicks", [&] { return presses >= 4; });
    EXPECT_EQ(presses, 4);
}

TEST_F(EventMonitorsTest, TheWheelIsNoClick)
{
    for (const std::uint8_t button : {4, 5, 6, 7}) {
        click(button);
    }
    click();
    desktop.waitFor("the click", [&] { return presses > 0; });
    EXPECT_EQ(presses, 1);
}

TEST_F(EventMonitorsTest, AClickIsSeenWhileAnotherProgramHasThePointer)
{
    auto* const link = desktop.other.connection();
    const Reply<xcb_grab_pointer_reply_t> grab(xcb_grab_pointer_reply(
        link,
        xcb_grab_pointer(link, 0, desktop.other.root(), XCB_EVENT_MASK_BUTTON_PRESS, XCB_GRAB_MODE_ASYNC,
                         XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME),
        nullptr));
    ASSERT_TRUE(grab && grab->status == XCB_GRAB_STATUS_SUCCESS);
    click();
    desktop.waitFor("the click", [&] { return presses == 1; });
}

TEST_F(EventMonitorsTest, AClickOnAWindowOfThisProgramIsNotSeen)
{
    desktop.display.keyboard.click(200, 200); // the test's own window lies there
    desktop.settle();
    EXPECT_EQ(presses, 0);
}

TEST_F(EventMonitorsTest, WithoutAMonitorTheServerSendsNothing)
{
    int events = 0;
    const auto watching = desktop.connection->addEventHandler(XCB_GE_GENERIC, [&](const auto&) { ++events; });
    monitor.reset();
    click();
    desktop.settle();
    EXPECT_EQ(events, 0);
}

} // namespace
} // namespace quorvel::x11
