#include <algorithm>

#include "e2e/ProgramTest.h"
#include "support/ClientProcess.h"
#include "support/StrutPanel.h"

namespace quorvel::e2e {
namespace {

using xtest::PixelRect;

class LayoutJourney : public ProgramTest {};

TEST_F(LayoutJourney, ALetterPutsTheFrontmostWindowIntoItsFrame)
{
    start();
    const auto other = openWindow({900, 500, 300, 200});
    const auto window = openWindow();
    const auto otherRect = display.client.outerRect(other->id());
    showOverlay(fullScreen);
    display.keyboard.tap(XKB_KEY_a);
    quorvel->waitUntilPlaced(window->id(), screen);
    quorvel->waitUntilIdle();
    EXPECT_EQ(display.client.outerRect(other->id()), otherRect);
    endCleanly();
}

TEST_F(LayoutJourney, TheWindowIsAskedToMoveBeforeTheFramesAreTakenAway)
{
    start();
    const auto window = openWindow();
    showOverlay(fullScreen);
    const auto overlays = display.client.topLevelsOfProcess(quorvel->program().id());
    const auto request = display.client.atom("_NET_MOVERESIZE_WINDOW");
    std::vector<std::string> order;
    display.client.observeEvents([&](const xcb_generic_event_t& event) {
        const auto type = event.response_type & 0x7F;
        if (type == XCB_CLIENT_MESSAGE && reinterpret_cast<const xcb_client_message_event_t&>(event).type == request) {
            order.emplace_back("asked");
        } else if (type == XCB_UNMAP_NOTIFY) {
            const auto& unmapped = reinterpret_cast<const xcb_unmap_notify_event_t&>(event);
            if (unmapped.event == display.client.root() &&
                std::ranges::find(overlays, unmapped.window) != overlays.end()) {
                order.emplace_back("taken away");
            }
        }
    });
    display.keyboard.tap(XKB_KEY_a);
    quorvel->waitUntilPlaced(window->id(), screen);
    quorvel->waitUntilIdle();
    display.client.observeEvents(nullptr);
    ASSERT_FALSE(overlays.empty());
    ASSERT_FALSE(order.empty());
    EXPECT_EQ(order.front(), "asked");
    EXPECT_EQ(std::ranges::count(order, "taken away"), static_cast<std::ptrdiff_t>(overlays.size()));
    endCleanly();
}

TEST_F(LayoutJourney, DownAndUpStepThroughTheSelectedLayoutsAndRoundTheEnds)
{
    start();
    const auto window = openWindow();
    showOverlay(fullScreen);
    for (const auto& frames : {centered, sideBySide, stacked}) {
        display.keyboard.tap(XKB_KEY_Down);
        quorvel->waitForFrames(frames, screen);
    }
    for (const auto& frames : {sideBySide, centered, fullScreen, fourTiles, threeSideBySide}) {
        display.keyboard.tap(XKB_KEY_Up);
        quorvel->waitForFrames(frames, screen);
    }
    display.keyboard.tap(XKB_KEY_b);
    quorvel->waitUntilPlaced(window->id(), threeSideBySide[1].within(screen));
    quorvel->waitUntilIdle();

    showOverlay(threeSideBySide); // the layout stays until another is chosen
    display.keyboard.tap(XKB_KEY_Escape);
    quorvel->waitUntilIdle();
    endCleanly();
}

TEST_F(LayoutJourney, ADigitJumpsToItsLayout)
{
    start();
    const auto window = openWindow();
    showOverlay(fullScreen);
    display.keyboard.tap(XKB_KEY_6);
    quorvel->waitForFrames(fourTiles, screen);
    display.keyboard.tap(XKB_KEY_c);
    quorvel->waitUntilPlaced(window->id(), fourTiles[2].within(screen));
    endCleanly();
}

TEST_F(LayoutJourney, ADigitWithoutALayoutKeepsTheOverlayAsItIs)
{
    start();
    const auto window = openWindow();
    showOverlay(fullScreen);
    typeIntoOverlay(XKB_KEY_9);
    typeIntoOverlay(XKB_KEY_0);
    quorvel->waitForFrames(fullScreen, screen);
    EXPECT_FALSE(display.grabs.isKeyboardFree());
    display.keyboard.tap(XKB_KEY_Escape);
    quorvel->waitUntilIdle();
    endCleanly();
}

TEST_F(LayoutJourney, EscapeOrALetterWithoutAFrameChangesNothing)
{
    start();
    const auto window = openWindow();
    const auto before = display.client.outerRect(window->id());
    for (const xcb_keysym_t key : {XKB_KEY_Escape, XKB_KEY_z, XKB_KEY_F5}) {
        showOverlay(fullScreen);
        typeIntoOverlay(key);
        quorvel->waitUntilIdle();
        EXPECT_EQ(display.client.outerRect(window->id()), before);
    }
    endCleanly();
}

TEST_F(LayoutJourney, TheHotKeyHidesTheOverlayItShowed)
{
    start();
    const auto window = openWindow();
    showOverlay(fullScreen);
    quorvel->pressHotKey();
    quorvel->waitUntilIdle();
    showOverlay(fullScreen);
    endCleanly();
}

TEST_F(LayoutJourney, NoKeyReachesTheWindowWhileTheOverlayIsUp)
{
    start();
    const auto window = openWindow();
    showOverlay(fullScreen);
    typeIntoOverlay(XKB_KEY_9);
    display.keyboard.press(XKB_KEY_a);
    quorvel->waitUntilPlaced(window->id(), screen);
    display.keyboard.release(XKB_KEY_a);
    quorvel->waitUntilIdle();
    const auto marker = display.keyboard.codeOf(XKB_KEY_k);
    display.keyboard.tap(XKB_KEY_k);
    window->waitForPress(marker);

    const auto& keys = window->keys();
    for (const xcb_keysym_t swallowed : {XKB_KEY_o, XKB_KEY_9, XKB_KEY_a}) {
        const auto code = display.keyboard.codeOf(swallowed);
        EXPECT_TRUE(std::ranges::none_of(keys, [&](const auto& key) { return key.pressed && key.code == code; }));
    }
    endCleanly();
}

TEST_F(LayoutJourney, RightAndLeftTakeTheOverlayToTheOtherScreen)
{
    start();
    const auto window = openWindow();
    switchSecondScreenOn();
    showOverlay(fullScreen);
    display.keyboard.tap(XKB_KEY_Right);
    quorvel->waitForFrames(fullScreen, secondScreen);
    display.keyboard.tap(XKB_KEY_Left);
    quorvel->waitForFrames(fullScreen, screen);
    display.keyboard.tap(XKB_KEY_Left);
    quorvel->waitForFrames(fullScreen, secondScreen);
    display.keyboard.tap(XKB_KEY_3);
    quorvel->waitForFrames(sideBySide, secondScreen);
    display.keyboard.tap(XKB_KEY_b);
    quorvel->waitUntilPlaced(window->id(), sideBySide[1].within(secondScreen));
    endCleanly();
}

TEST_F(LayoutJourney, TheOverlayOpensOnTheScreenThatHoldsTheWindow)
{
    switchSecondScreenOn();
    start();
    const auto window = openWindow({2100, 200, 600, 400});
    showOverlay(fullScreen, secondScreen);
    display.keyboard.tap(XKB_KEY_a);
    quorvel->waitUntilPlaced(window->id(), secondScreen);
    endCleanly();
}

TEST_F(LayoutJourney, PanelsStayUncovered)
{
    start();
    const auto window = openWindow();
    const xtest::StrutPanel top(display.server, screen, xtest::Side::top, 30);
    const xtest::StrutPanel left(display.server, screen, xtest::Side::left, 60);
    waitForPanel(top);
    waitForPanel(left);
    const PixelRect free{60, 30, 1860, 1050};
    showOverlay(fullScreen, free);
    display.keyboard.tap(XKB_KEY_3);
    quorvel->waitForFrames(sideBySide, free);
    display.keyboard.tap(XKB_KEY_a);
    quorvel->waitUntilPlaced(window->id(), sideBySide[0].within(free));
    endCleanly();
}

TEST_F(LayoutJourney, AMaximizedWindowIsPlacedLikeAnyOther)
{
    start();
    const auto window = openWindow();
    window->setState("_NET_WM_STATE_MAXIMIZED_VERT", true);
    window->setState("_NET_WM_STATE_MAXIMIZED_HORZ", true);
    showOverlay(fullScreen);
    display.keyboard.tap(XKB_KEY_2);
    quorvel->waitForFrames(centered, screen);
    display.keyboard.tap(XKB_KEY_a);
    quorvel->waitUntilPlaced(window->id(), centered[0].within(screen));
    EXPECT_FALSE(display.client.hasState(window->id(), "_NET_WM_STATE_MAXIMIZED_VERT"));
    endCleanly();
}

class LayoutJourneyOfClient : public ProgramTest, public testing::WithParamInterface<xtest::ClientProcess::Kind> {};

TEST_P(LayoutJourneyOfClient, IsPlacedIntoEachTile)
{
    if (!xtest::ClientProcess::isInstalled(GetParam())) {
        GTEST_SKIP() << xtest::ClientProcess::nameOf(GetParam()) << " is not installed";
    }
    start();
    const xtest::ClientProcess client(display.server, display.client, GetParam());
    display.client.activate(client.window());
    showOverlay(fullScreen);
    display.keyboard.tap(XKB_KEY_6);
    quorvel->waitForFrames(fourTiles, screen);
    for (std::size_t tile = 0; tile < fourTiles.size(); ++tile) {
        display.keyboard.tap(XKB_KEY_a + static_cast<xcb_keysym_t>(tile));
        quorvel->waitUntilPlaced(client.window(), fourTiles[tile].within(screen));
        quorvel->waitUntilIdle();
        showOverlay(fourTiles);
    }
    endCleanly();
}

INSTANTIATE_TEST_SUITE_P(Every, LayoutJourneyOfClient, testing::ValuesIn(xtest::ClientProcess::allKinds()),
                         [](const auto& parameter) { return xtest::ClientProcess::nameOf(parameter.param); });

} // namespace
} // namespace quorvel::e2e
