#include "support/ClientProcess.h"
#include "x11/overlays/OverlayTest.h"

namespace quorvel::x11 {
namespace {

using Modifier = xtest::KeyInjector::Modifier;

class OverlayPanelTest : public OverlayTest {
protected:
    void show()
    {
        panel->orderFrontRegardless();
        panel->makeKey();
        waitFor("the focus", [&] { return shownWindows() == std::vector{focus()}; });
    }

    xcb_window_t focus()
    {
        auto* const client = display.client.connection();
        const Reply<xcb_get_input_focus_reply_t> reply(
            xcb_get_input_focus_reply(client, xcb_get_input_focus(client), nullptr));
        return reply->focus;
    }

    // As a window manager does when it carries an activation out.
    void giveFocusAway()
    {
        xcb_set_input_focus(display.client.connection(), XCB_INPUT_FOCUS_POINTER_ROOT, display.client.root(),
                            XCB_CURRENT_TIME);
        display.client.sync();
    }

    std::vector<KeyEvent> heard;
    std::unique_ptr<OverlayPanel> panel =
        windows.createPanel({.contentRect = {0.0, 0.0, 1920.0, 1080.0}, .level = windowLevels::floating},
                            [this](const KeyEvent& event) { heard.push_back(event); });
};

TEST_F(OverlayPanelTest, IsInvisible)
{
    const auto before = pixel(500, 500);
    show();
    EXPECT_EQ(pixel(500, 500), before);
    display.keyboard.movePointer(500, 500);
    auto* const client = display.client.connection();
    const Reply<xcb_query_pointer_reply_t> pointer(
        xcb_query_pointer_reply(client, xcb_query_pointer(client, display.client.root()), nullptr));
    EXPECT_EQ(pointer->child, static_cast<xcb_window_t>(XCB_WINDOW_NONE));
}

TEST_F(OverlayPanelTest, HearsKeysWithTheirCharactersAndModifiers)
{
    show();
    display.keyboard.tap(XKB_KEY_b);
    display.keyboard.tap({Modifier::shift}, XKB_KEY_b);
    display.keyboard.tap({Modifier::control}, XKB_KEY_b);
    waitFor("three keys", [&] { return heard.size() >= 3; });
    settle();
    ASSERT_EQ(heard.size(), 3U); // modifiers by themselves are no key-downs
    EXPECT_EQ(heard[0].keyCode, 11);
    EXPECT_EQ(heard[0].characters, "b");
    EXPECT_EQ(heard[0].flags, 0U);
    EXPECT_EQ(heard[1].characters, "B");
    EXPECT_EQ(heard[1].flags, eventFlags::shift);
    EXPECT_EQ(heard[2].flags, eventFlags::control);
}

TEST_F(OverlayPanelTest, IsNotKeyBeforeItIsShown)
{
    panel->makeKey();
    settle();
    EXPECT_FALSE(panel->isKey());
    EXPECT_TRUE(shownWindows().empty());
}

TEST_F(OverlayPanelTest, IsKeyAtOnceAndNoLongerAfterAnotherWindowTookTheFocus)
{
    panel->orderFrontRegardless();
    panel->makeKey();
    EXPECT_TRUE(panel->isKey());
    settle();
    EXPECT_TRUE(panel->isKey());
    giveFocusAway();
    waitFor("the loss of the focus", [&] { return !panel->isKey(); });
}

TEST_F(OverlayPanelTest, MadeKeyAgainItKeepsTheFocusFromActivationsOnTheirWay)
{
    show();
    panel->makeKey();
    for (int change = 0; change < 3; ++change) {
        giveFocusAway();
        waitFor("the focus again", [&] { return shownWindows() == std::vector{focus()}; });
    }
    display.keyboard.tap(XKB_KEY_b);
    waitFor("the key", [&] { return heard.size() == 1; });

    giveFocusAway();
    waitFor("the loss of the focus", [&] { return !panel->isKey(); });
    settle();
    EXPECT_EQ(focus(), display.client.root());
}

TEST_F(OverlayPanelTest, StaysKeyWhileAnotherProgramGrabsTheKeyboard)
{
    show();
    auto* const client = display.client.connection();
    const Reply<xcb_grab_keyboard_reply_t> grab(xcb_grab_keyboard_reply(
        client,
        xcb_grab_keyboard(client, 0, display.client.root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
        nullptr));
    ASSERT_EQ(grab->status, XCB_GRAB_STATUS_SUCCESS);
    settle();
    EXPECT_TRUE(panel->isKey());
    xcb_ungrab_keyboard(client, XCB_CURRENT_TIME);
    display.client.sync();
    settle();
    EXPECT_TRUE(panel->isKey());
}

TEST_F(OverlayPanelTest, LetsTheWindowManagerGiveTheFocusBack)
{
    display.startWindowManager(xtest::WindowManager::openbox);
    const xtest::ClientProcess editor(display.server, display.client, xtest::ClientProcess::Kind::plain, "Editor");
    show();
    panel->orderOut();
    EXPECT_FALSE(panel->isKey());
    display.client.sendToWindowManager(editor.window(), "_NET_ACTIVE_WINDOW", {2, 0, 0, 0, 0});
    waitFor("the editor's focus", [&] { return focus() == editor.window(); });
    display.keyboard.tap(XKB_KEY_b);
    settle();
    EXPECT_TRUE(heard.empty());
}

TEST_F(OverlayPanelTest, KeepsTheFocusUnderAWindowManager)
{
    display.startWindowManager(xtest::WindowManager::openbox);
    const xtest::ClientProcess editor(display.server, display.client, xtest::ClientProcess::Kind::plain, "Editor");
    show();
    for (int count = 0; count < 3; ++count) {
        display.keyboard.tap(XKB_KEY_b);
    }
    waitFor("three keys", [&] { return heard.size() == 3; });
    EXPECT_EQ(focus(), shownWindows().at(0));
}

class OverlayPanelUnder : public OverlayPanelTest, public testing::WithParamInterface<xtest::WindowManager> {
protected:
    static std::vector<std::uint8_t> presses(xtest::TestWindow& window)
    {
        std::vector<std::uint8_t> codes;
        for (const auto& key : window.keys()) {
            if (key.pressed) {
                codes.push_back(key.code);
            }
        }
        return codes;
    }
};

// Typed as fast as can be, and with the pointer over another window.
TEST_P(OverlayPanelUnder, WhatIsTypedAfterItIsOrderedOutReachesTheActivatedWindow)
{
    if (!xtest::WindowManagerProcess::isInstalled(GetParam())) {
        GTEST_SKIP() << nameOf(GetParam()) << " is not installed";
    }
    display.startWindowManager(GetParam());
    xtest::TestWindow chosen(display.server, {.rect = {100, 100, 300, 200}});
    chosen.map();
    xtest::TestWindow other(display.server, {.rect = {900, 500, 300, 200}});
    other.map();
    display.keyboard.movePointer(1000, 600);
    display.client.activate(other.id());
    show();

    panel->orderOut();
    windowManager.activate(chosen.id());
    connection->sync();
    const std::vector<std::uint8_t> typed(8, display.keyboard.codeOf(XKB_KEY_b));
    for (const auto code : typed) {
        display.keyboard.tapCode({}, code);
    }
    waitFor("the keys", [&] { return presses(chosen) == typed; });
    EXPECT_TRUE(presses(other).empty());
    EXPECT_TRUE(heard.empty());
}

INSTANTIATE_TEST_SUITE_P(Every, OverlayPanelUnder, testing::ValuesIn(xtest::allWindowManagers()),
                         [](const auto& parameter) { return nameOf(parameter.param); });

} // namespace
} // namespace quorvel::x11
