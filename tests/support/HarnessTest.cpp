#include <filesystem>

#include <gmock/gmock.h>

#include "support/ClientProcess.h"
#include "support/Compositor.h"
#include "support/Patience.h"
#include "support/ProgramUnderTest.h"
#include "support/Screenshot.h"
#include "support/StrutPanel.h"
#include "support/TestDisplay.h"
#include "support/TestWindow.h"

namespace quorvel::xtest {
namespace {

using testing::ElementsAre;
using Modifier = KeyInjector::Modifier;

TEST(XtestServer, TwoServersHaveTheirOwnDisplays)
{
    const XServer first;
    const XServer second;
    EXPECT_NE(first.display(), second.display());
}

TEST(XtestServer, AVanishedServerEndsAWait)
{
    XServer server;
    XClient client(server);
    server.kill();
    EXPECT_THROW(client.waitFor("nothing", [] { return false; }), HarnessError);
}

TEST(XtestServer, TheDummyServerHasOutputs)
{
    if (!XServer::isAvailable(XServer::Kind::dummyOutputs)) {
        GTEST_SKIP() << "needs root and the dummy video driver";
    }
    TestDisplay display({.kind = XServer::Kind::dummyOutputs});
    EXPECT_EQ(display.client.screen().width_in_pixels, 1920);
}

TEST(XtestMonitors, EveryArrangementIsListedAsAsked)
{
    TestDisplay display({.width = 3840, .height = 2400});
    for (const auto& arrangement : monitorArrangements()) {
        display.monitors.arrange(arrangement.monitors);
        const auto listed = display.monitors.current();
        ASSERT_EQ(listed.size(), arrangement.monitors.size()) << arrangement.name;
        for (const auto& wanted : arrangement.monitors) {
            const bool found = std::ranges::any_of(listed, [&](const Monitor& monitor) {
                return monitor.name == wanted.name && monitor.rect == wanted.rect && monitor.role == wanted.role;
            });
            EXPECT_TRUE(found) << arrangement.name << " " << wanted.name;
        }
    }
}

TEST(XtestKeys, TypedKeysReachTheFocusedWindowWithTheirModifiers)
{
    TestDisplay display;
    display.startWindowManager(WindowManager::openbox);
    TestWindow window(display.server, {});
    window.map();
    display.client.waitFor("focus", [&] { return display.client.activeWindow() == window.id(); });
    const auto code = display.keyboard.codeOf(XKB_KEY_k);
    display.keyboard.tap({Modifier::control, Modifier::shift}, XKB_KEY_k);
    window.waitForPress(code);
    const auto& keys = window.keys();
    const auto press =
        std::ranges::find_if(keys, [&](const TestWindow::Key& key) { return key.pressed && key.code == code; });
    EXPECT_EQ(press->state, XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_SHIFT);
}

TEST(XtestGrabs, AGrabbedCombinationAndAGrabbedKeyboardAreNoticed)
{
    TestDisplay display;
    XClient other(display.server);
    const KeyCombination combination{{Modifier::command, Modifier::shift}, XKB_KEY_o};
    EXPECT_TRUE(display.grabs.isFree(combination));
    EXPECT_TRUE(display.grabs.isKeyboardFree());

    xcb_grab_key(other.connection(), 0, other.root(), XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT,
                 display.keyboard.codeOf(XKB_KEY_o), XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const auto cookie = xcb_grab_keyboard(other.connection(), 0, other.root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC,
                                          XCB_GRAB_MODE_ASYNC);
    const XReply<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(other.connection(), cookie, nullptr));
    EXPECT_FALSE(display.grabs.isFree(combination));
    EXPECT_FALSE(display.grabs.isKeyboardFree());

    xcb_ungrab_keyboard(other.connection(), XCB_CURRENT_TIME);
    xcb_flush(other.connection());
    display.grabs.waitUntilKeyboardIsFree();
}

TEST(XtestPanel, AWindowManagerKeepsMaximizedWindowsOffAPanel)
{
    TestDisplay display;
    display.startWindowManager(WindowManager::openbox);
    const StrutPanel panel(display.server, {0, 0, 1920, 1080}, Side::bottom, 40);
    display.client.waitFor("the work area to shrink", [&] {
        const auto area = display.client.property(display.client.root(), "_NET_WORKAREA");
        return area.size() >= 4 && area[3] == 1040;
    });
    EXPECT_EQ(panel.rect(), (PixelRect{0, 1040, 1920, 40}));
}

TEST(XtestScreenshot, ShowsWhatAWindowShows)
{
    TestDisplay display;
    TestWindow window(display.server, {.rect = {10, 20, 100, 50}, .overrideRedirect = true, .color = 0x336699});
    window.map();
    const Screenshot picture(display.client);
    EXPECT_EQ(picture.pixel(10, 20), 0x336699U);
    EXPECT_EQ(picture.pixel(109, 69), 0x336699U);
    EXPECT_NE(picture.pixel(110, 70), 0x336699U);
    const TemporaryDirectory folder;
    picture.writePng(folder.path() / "picture.png");
    EXPECT_GT(std::filesystem::file_size(folder.path() / "picture.png"), 100U);
}

TEST(XtestCompositor, MakesWindowsWithAlphaTransparent)
{
    if (!Compositor::isInstalled()) {
        GTEST_SKIP() << "needs picom";
    }
    TestDisplay display;
    Compositor compositor(display.server, display.client);
    EXPECT_NE(display.client.selectionOwner("_NET_WM_CM_S0"), static_cast<xcb_window_t>(XCB_NONE));
    compositor.stop();
}

TEST(XtestProgram, LinesAreReadInOrderAndTheExitStatusIsTold)
{
    const XServer server;
    const TemporaryDirectory configuration;
    ProgramUnderTest program(server, "/bin/sh", configuration,
                             {.arguments = {"-c", "echo one; echo two; echo oops >&2; read never; exit 3"}});
    EXPECT_EQ(program.waitForLineStartingWith("o"), "one");
    EXPECT_EQ(program.waitForLine("two"), "two");
    EXPECT_EQ(program.waitForEnd(), 3);
    EXPECT_THAT(program.errorLines(), ElementsAre("oops"));
    EXPECT_THROW(program.waitForLine("one"), HarnessError);
}

class XtestWindowManager : public testing::TestWithParam<WindowManager> {};

TEST_P(XtestWindowManager, ManagesEveryKindOfClientAndCanBeRestarted)
{
    if (!WindowManagerProcess::isInstalled(GetParam())) {
        GTEST_SKIP() << nameOf(GetParam()) << " is not installed";
    }
    std::string missing;
    TestDisplay display;
    auto& manager = display.startWindowManager(GetParam());
    for (const auto kind : ClientProcess::allKinds()) {
        if (!ClientProcess::isInstalled(kind)) {
            missing += " " + ClientProcess::nameOf(kind);
            continue;
        }
        ClientProcess program(display.server, display.client, kind);
        const auto outer = display.client.outerRect(program.window());
        const auto inner = display.client.clientRect(program.window());
        ASSERT_TRUE(outer && inner) << ClientProcess::nameOf(kind);
        EXPECT_GT(outer->height, inner->height) << ClientProcess::nameOf(kind);
        program.kill();
    }
    manager.restart();
    if (!missing.empty()) {
        GTEST_SKIP() << "not installed:" << missing;
    }
}

INSTANTIATE_TEST_SUITE_P(Every, XtestWindowManager, testing::ValuesIn(allWindowManagers()),
                         [](const auto& parameter) { return nameOf(parameter.param); });

} // namespace
} // namespace quorvel::xtest
