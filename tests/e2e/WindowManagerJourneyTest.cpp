#include "e2e/OutputsTest.h"

namespace quorvel::e2e {
namespace {

class WindowManagerJourney : public OutputsTest, public testing::WithParamInterface<xtest::WindowManager> {
protected:
    void SetUp() override
    {
        OutputsTest::SetUp();
        if (IsSkipped()) {
            return;
        }
        if (!xtest::WindowManagerProcess::isInstalled(GetParam())) {
            GTEST_SKIP() << nameOf(GetParam()) << " is not installed";
        }
        display.arrange(
            {{"left", screen, xtest::MonitorRole::primary}, {"right", secondScreen, xtest::MonitorRole::secondary}});
        display.startWindowManager(GetParam());
    }
};

TEST_P(WindowManagerJourney, ALetterPlacesTheWindowOnTheNextScreenAndBackFromFullScreen)
{
    start();
    const auto window = openWindow();
    showOverlay(fullScreen);
    display.keyboard.tap(XKB_KEY_3);
    quorvel->waitForFrames(sideBySide, screen);
    display.keyboard.tap(XKB_KEY_Right);
    quorvel->waitForFrames(sideBySide, secondScreen);
    display.keyboard.tap(XKB_KEY_b);
    quorvel->waitUntilPlaced(window->id(), sideBySide[1].within(secondScreen));
    quorvel->waitUntilIdle();

    window->setState("_NET_WM_STATE_FULLSCREEN", true);
    showOverlay(sideBySide, secondScreen);
    display.keyboard.tap(XKB_KEY_Left);
    quorvel->waitForFrames(sideBySide, screen);
    display.keyboard.tap(XKB_KEY_1);
    quorvel->waitForFrames(fullScreen, screen);
    display.keyboard.tap(XKB_KEY_a);
    display.client.waitFor("the window to leave full screen",
                           [&] { return !display.client.hasState(window->id(), "_NET_WM_STATE_FULLSCREEN"); });
    quorvel->waitUntilPlaced(window->id(), screen);
    endCleanly();
}

INSTANTIATE_TEST_SUITE_P(Every, WindowManagerJourney, testing::ValuesIn(xtest::allWindowManagers()),
                         [](const auto& parameter) { return nameOf(parameter.param); });

} // namespace
} // namespace quorvel::e2e
