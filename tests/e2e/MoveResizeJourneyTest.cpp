#include <algorithm>
#include <array>

#include "e2e/ProgramTest.h"
#include "support/ClientProcess.h"

namespace quorvel::e2e {
namespace {

using xtest::PixelRect;
using xtest::WindowManager;
using Modifier = xtest::KeyInjector::Modifier;

constexpr std::array modeKeys{XKB_KEY_Left, XKB_KEY_Right,  XKB_KEY_Up, XKB_KEY_Down,
                              XKB_KEY_Tab,  XKB_KEY_Escape, XKB_KEY_m};

class MoveResizeTest : public ProgramTest {
protected:
    void enter(xcb_window_t window)
    {
        freeBefore = freeKeys();
        ASSERT_GE(freeBefore.size(), modeKeys.size());
        display.keyboard.tap({Modifier::command, Modifier::option}, XKB_KEY_r);
        waitUntilFramed(window);
    }

    PixelRect rectOf(xcb_window_t window) { return display.client.outerRect(window).value_or(PixelRect()); }

    bool isShown(const PixelRect& rect)
    {
        return std::ranges::any_of(quorvel->overlayRects(), [&](const PixelRect& each) { return isNear(each, rect); });
    }

    void waitUntilFramed(xcb_window_t window)
    {
        display.client.waitFor("a frame around the window", [&] { return isShown(rectOf(window)); });
    }

    void waitUntilMinimized(xcb_window_t window)
    {
        display.client.waitFor("the window to be minimized",
                               [&] { return display.client.hasState(window, "_NET_WM_STATE_HIDDEN"); });
    }

    // Presses a key and waits until the window, and its frame with it, are there.
    void expectKeyLeadsTo(const std::vector<Modifier>& modifiers, xcb_keysym_t key, xcb_window_t window,
                          const PixelRect& expected)
    {
        display.keyboard.tap(modifiers, key);
        quorvel->waitUntilPlaced(window, expected);
        display.client.waitFor("the frame to follow", [&] { return isShown(expected); });
    }

    // The keys of the mode that nobody holds; window managers have shortcuts of their own.
    std::vector<xtest::KeyCombination> freeKeys()
    {
        std::vector<xtest::KeyCombination> keys;
        for (const xcb_keysym_t key : modeKeys) {
            for (const auto& modifiers : {std::vector<Modifier>{}, std::vector{Modifier::shift}}) {
                if (display.grabs.isFree({modifiers, key})) {
                    keys.push_back({modifiers, key});
                }
            }
        }
        return keys;
    }

    // Leaves by the exit key; afterwards every key of the mode is free again.
    void leave()
    {
        display.keyboard.tap(XKB_KEY_Escape);
        quorvel->waitUntilIdle();
        for (const auto& key : freeBefore) {
            display.grabs.waitUntilFree(key);
        }
    }

    // Presses a key that the window manager will refuse; the frame goes ahead and comes back.
    void expectKeyIsRefused(const std::vector<Modifier>& modifiers, xcb_keysym_t key, xcb_window_t window,
                            const PixelRect& ahead)
    {
        const auto before = rectOf(window);
        display.windowManager().hold();
        display.keyboard.tap(modifiers, key);
        display.client.waitFor("the frame to go ahead", [&] { return isShown(ahead); });
        display.windowManager().goOn();
        display.client.waitFor("the frame to come back", [&] { return isShown(before) && !isShown(ahead); });
        EXPECT_EQ(rectOf(window), before);
    }

    static PixelRect moved(PixelRect rect, int x, int y) { return {rect.x + x, rect.y + y, rect.width, rect.height}; }
    static PixelRect grown(PixelRect rect, int width, int height)
    {
        return {rect.x, rect.y, rect.width + width, rect.height + height};
    }

    std::vector<xtest::KeyCombination> freeBefore;
};

class MoveResizeUnder : public MoveResizeTest, public testing::WithParamInterface<WindowManager> {
protected:
    void SetUp() override
    {
        if (!xtest::WindowManagerProcess::isInstalled(GetParam())) {
            GTEST_SKIP() << xtest::nameOf(GetParam()) << " is not installed";
        }
        display.windowManager().replaceWith(GetParam());
        start();
    }
};

TEST_P(MoveResizeUnder, ArrowsMoveAndResizeAndTheFrameFollows)
{
    const auto window = openWindow();
    enter(window->id());
    auto rect = rectOf(window->id());
    expectKeyLeadsTo({}, XKB_KEY_Right, window->id(), rect = moved(rect, 20, 0));
    expectKeyLeadsTo({}, XKB_KEY_Down, window->id(), rect = moved(rect, 0, 20));
    expectKeyLeadsTo({}, XKB_KEY_Left, window->id(), rect = moved(rect, -20, 0));
    expectKeyLeadsTo({}, XKB_KEY_Up, window->id(), rect = moved(rect, 0, -20));
    expectKeyLeadsTo({Modifier::shift}, XKB_KEY_Right, window->id(), rect = grown(rect, 20, 0));
    expectKeyLeadsTo({Modifier::shift}, XKB_KEY_Down, window->id(), rect = grown(rect, 0, 20));
    expectKeyLeadsTo({Modifier::shift}, XKB_KEY_Left, window->id(), rect = grown(rect, -20, 0));
    expectKeyLeadsTo({Modifier::shift}, XKB_KEY_Up, window->id(), rect = grown(rect, 0, -20));
    leave();
    EXPECT_TRUE(isNear(rectOf(window->id()), rect));
    endCleanly();
}

TEST_P(MoveResizeUnder, KeysTypedFasterThanTheWindowManagerAnswersAllCount)
{
    const auto window = openWindow();
    enter(window->id());
    const auto rect = rectOf(window->id());
    display.windowManager().hold();
    for (int i = 0; i < 3; ++i) {
        display.keyboard.tap(XKB_KEY_Right);
        display.keyboard.tap(XKB_KEY_Down);
        display.keyboard.tap({Modifier::shift}, XKB_KEY_Right);
    }
    const auto expected = grown(moved(rect, 60, 60), 60, 0);
    display.client.waitFor("the frame to go ahead", [&] { return isShown(expected); });
    EXPECT_EQ(rectOf(window->id()), rect);
    display.windowManager().goOn();
    quorvel->waitUntilPlaced(window->id(), expected);
    waitUntilFramed(window->id());
    leave();
    EXPECT_TRUE(isNear(rectOf(window->id()), expected));
    endCleanly();
}

TEST_P(MoveResizeUnder, AnEdgeAttractsAndTheThirdPressPullsFree)
{
    const auto neighbour = openWindow({900, 200, 400, 500});
    const auto window = openWindow({200, 250, 400, 300});
    enter(window->id());
    const auto edge = rectOf(neighbour->id());
    auto rect = rectOf(window->id());
    while (edge.x - (rect.x + rect.width) > 40) {
        expectKeyLeadsTo({}, XKB_KEY_Right, window->id(), rect = moved(rect, 20, 0));
    }
    rect.x = edge.x - rect.width;
    expectKeyLeadsTo({}, XKB_KEY_Right, window->id(), rect);
    const PixelRect strip{edge.x - 6, edge.y - 3, 12, edge.height + 6};
    display.client.waitFor("the frame of the edge", [&] { return isShown(strip); });

    display.keyboard.tap(XKB_KEY_Right);
    display.keyboard.tap(XKB_KEY_Up);
    expectKeyLeadsTo({}, XKB_KEY_Right, window->id(), rect = moved(rect, 20, 0));
    EXPECT_FALSE(isShown(strip));
    leave();
    EXPECT_TRUE(isNear(rectOf(window->id()), rect));
    endCleanly();
}

TEST_P(MoveResizeUnder, TabGoesOnToTheNextWindowAndBack)
{
    const auto other = openWindow({900, 200, 400, 500});
    const auto window = openWindow({200, 250, 400, 300});
    enter(window->id());
    display.keyboard.tap(XKB_KEY_Tab);
    waitUntilFramed(other->id());
    display.client.waitFor("the other window to be active",
                           [&] { return display.client.activeWindow() == other->id(); });
    expectKeyLeadsTo({}, XKB_KEY_Down, other->id(), moved(rectOf(other->id()), 0, 20));
    display.keyboard.tap({Modifier::shift}, XKB_KEY_Tab);
    waitUntilFramed(window->id());
    expectKeyLeadsTo({}, XKB_KEY_Down, window->id(), moved(rectOf(window->id()), 0, 20));
    leave();
    endCleanly();
}

TEST_P(MoveResizeUnder, MMinimizesAndGoesOnToTheNextWindow)
{
    if (GetParam() == WindowManager::i3) {
        GTEST_SKIP() << "i3 does not minimize windows";
    }
    const auto other = openWindow({900, 200, 400, 500});
    const auto window = openWindow({200, 250, 400, 300});
    enter(window->id());
    display.keyboard.tap(XKB_KEY_m);
    waitUntilMinimized(window->id());
    waitUntilFramed(other->id());
    expectKeyLeadsTo({}, XKB_KEY_Right, other->id(), moved(rectOf(other->id()), 20, 0));
    display.keyboard.tap(XKB_KEY_m);
    waitUntilMinimized(other->id());
    quorvel->waitUntilIdle();
    endCleanly();
}

INSTANTIATE_TEST_SUITE_P(Every, MoveResizeUnder, testing::ValuesIn(xtest::allWindowManagers()),
                         [](const auto& parameter) { return xtest::nameOf(parameter.param); });

class MoveResizeJourney : public MoveResizeTest {};

TEST_F(MoveResizeJourney, OtherKeysReachTheWindowAndThoseOfTheModeDoNot)
{
    start();
    const auto window = openWindow();
    enter(window->id());
    expectKeyLeadsTo({}, XKB_KEY_Right, window->id(), moved(rectOf(window->id()), 20, 0));
    display.keyboard.tap(XKB_KEY_k);
    window->waitForPress(display.keyboard.codeOf(XKB_KEY_k));
    const auto arrow = display.keyboard.codeOf(XKB_KEY_Right);
    EXPECT_TRUE(
        std::ranges::none_of(window->keys(), [&](const auto& key) { return key.pressed && key.code == arrow; }));
    leave();
    endCleanly();
}

TEST_F(MoveResizeJourney, TheHotKeyEndsIt)
{
    start();
    const auto window = openWindow();
    enter(window->id());
    display.keyboard.tap({Modifier::command, Modifier::option}, XKB_KEY_r);
    quorvel->waitUntilIdle();
    endCleanly();
}

TEST_F(MoveResizeJourney, AWindowThatClosesTakesItsFrameAlong)
{
    start();
    const auto other = openWindow({900, 200, 400, 500});
    auto window = openWindow();
    enter(window->id());
    window->vanish();
    quorvel->waitForNoOverlay();
    display.keyboard.tap(XKB_KEY_Right);
    display.keyboard.tap(XKB_KEY_Tab);
    waitUntilFramed(other->id());
    leave();
    endCleanly();
}

TEST_F(MoveResizeJourney, TheFrameFollowsAWindowThatMovesByItself)
{
    start();
    const auto window = openWindow();
    enter(window->id());
    const auto before = rectOf(window->id());
    window->moveItself(640, 420);
    display.client.waitFor("the window to be elsewhere", [&] {
        const auto now = rectOf(window->id());
        return now.x != before.x && now.y != before.y;
    });
    waitUntilFramed(window->id());
    EXPECT_FALSE(isShown(before));
    leave();
    endCleanly();
}

TEST_F(MoveResizeJourney, TheFrameFollowsAWindowThatChangesItsSizeByItself)
{
    start();
    const auto window = openWindow();
    enter(window->id());
    const auto before = rectOf(window->id());
    window->resizeItself(500, 350);
    display.client.waitFor("the window to be resized", [&] { return rectOf(window->id()) != before; });
    waitUntilFramed(window->id());
    leave();
    endCleanly();
}

TEST_F(MoveResizeJourney, TheFrameStaysOnAWindowOfFixedSize)
{
    start();
    xtest::TestWindow window(display.server, {.rect = {200, 150, 400, 300}, .sizeLimits = {400, 300, 400, 300}});
    window.map();
    display.client.activate(window.id());
    enter(window.id());
    const auto rect = rectOf(window.id());
    for (int press = 0; press < 3; ++press) {
        expectKeyIsRefused({Modifier::shift}, XKB_KEY_Right, window.id(), grown(rect, 20, 0));
    }
    expectKeyLeadsTo({}, XKB_KEY_Right, window.id(), moved(rect, 20, 0));
    leave();
    endCleanly();
}

TEST_F(MoveResizeJourney, TheFrameStaysOnATiledWindow)
{
    if (!xtest::WindowManagerProcess::isInstalled(WindowManager::i3)) {
        GTEST_SKIP() << "i3 is not installed";
    }
    display.windowManager().replaceWith(WindowManager::i3);
    start();
    xtest::TestWindow window(display.server, {.className = "Tiled"});
    window.map();
    display.client.activate(window.id());
    enter(window.id());
    const auto rect = rectOf(window.id());
    expectKeyIsRefused({}, XKB_KEY_Right, window.id(), moved(rect, 20, 0));
    expectKeyIsRefused({}, XKB_KEY_Down, window.id(), moved(rect, 0, 20));
    leave();
    endCleanly();
}

TEST_F(MoveResizeJourney, ClicksGoThroughTheFrames)
{
    start();
    const auto window = openWindow();
    enter(window->id());
    const auto rect = rectOf(window->id());
    display.keyboard.movePointer(rect.x + 1, rect.y + rect.height / 2);
    display.client.sync();
    auto* link = display.client.connection();
    const xtest::XReply<xcb_query_pointer_reply_t> pointer(
        xcb_query_pointer_reply(link, xcb_query_pointer(link, display.client.root()), nullptr));
    ASSERT_NE(pointer, nullptr);
    EXPECT_EQ(pointer->child, display.client.topLevelOf(window->id()));
    leave();
    endCleanly();
}

} // namespace
} // namespace quorvel::e2e
