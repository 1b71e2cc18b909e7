#include "e2e/ProgramTest.h"

namespace quorvel::e2e {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Disturbance : public ProgramTest {};

TEST_F(Disturbance, AWindowThatClosesBeforeTheLetterIsForgotten)
{
    start();
    const auto remaining = openWindow();
    auto closing = openWindow({300, 300, 400, 300});
    showOverlay(fullScreen);
    const auto id = closing->id();
    closing->vanish();
    display.client.waitFor("the window to close", [&] { return !display.client.exists(id); });
    display.keyboard.tap(XKB_KEY_a);
    quorvel->program().waitForLine("Window is gone; nothing was placed");
    quorvel->waitUntilIdle();

    display.client.activate(remaining->id());
    showOverlay(fullScreen);
    display.keyboard.tap(XKB_KEY_a);
    quorvel->waitUntilPlaced(remaining->id(), screen);
    endCleanly();
}

TEST_F(Disturbance, AWindowManagerMayRestartUnderTheOverlay)
{
    start();
    const auto window = openWindow();
    showOverlay(fullScreen);
    display.windowManager().stop();
    quorvel->program().waitForLine("Window manager is gone; windows may stay where they are");
    display.windowManager().restart();
    quorvel->program().waitForLine("Window manager has started");
    display.keyboard.tap(XKB_KEY_Escape);
    quorvel->waitUntilIdle();

    display.client.activate(window->id());
    showOverlay(fullScreen);
    display.keyboard.tap(XKB_KEY_a);
    quorvel->waitUntilPlaced(window->id(), screen);
    endCleanly();
}

TEST_F(Disturbance, StartedBeforeTheWindowManagerItWorksOnceThatIsThere)
{
    display.windowManager().stop();
    start();
    display.windowManager().restart();
    quorvel->program().waitForLine("Window manager has started");
    const auto window = openWindow();
    showOverlay(fullScreen);
    display.keyboard.tap(XKB_KEY_a);
    quorvel->waitUntilPlaced(window->id(), screen);
    endCleanly();
}

TEST_F(Disturbance, AScreenMayVanishUnderTheOverlay)
{
    switchSecondScreenOn();
    start();
    const auto window = openWindow({2100, 200, 600, 400});
    showOverlay(fullScreen, secondScreen);
    display.monitors.arrange({{"left", screen, xtest::MonitorRole::primary}});
    display.keyboard.tap(XKB_KEY_Escape);
    quorvel->waitUntilIdle();

    const auto other = openWindow();
    showOverlay(fullScreen);
    display.keyboard.tap(XKB_KEY_a);
    quorvel->waitUntilPlaced(other->id(), screen);
    endCleanly();
}

TEST_F(Disturbance, WithoutAWindowTheKeyboardStaysFree)
{
    start();
    quorvel->pressHotKey();
    quorvel->program().waitForLine("Frontmost element invalid; cannot show overlay");
    quorvel->waitUntilIdle();
    endCleanly();
}

TEST_F(Disturbance, AHotKeyOfAnotherProgramIsReportedAndTheOthersWork)
{
    auto* link = display.client.connection();
    xcb_grab_key(link, 0, display.client.root(), XCB_MOD_MASK_4 | XCB_MOD_MASK_SHIFT,
                 display.keyboard.codeOf(RunningQuorvel::hotKey().keysym), XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    display.client.sync();
    xtest::ProgramUnderTest program(display.server, QUORVEL_PROGRAM, configuration);
    program.waitForLine("Failed to register hotkey with status: -9878");
    program.waitForLineStartingWith("Registered hotkey id=2 ");
    EXPECT_EQ(program.end(), 0);
}

TEST_F(Disturbance, AServerThatGoesAwayEndsTheProgramWithALine)
{
    start();
    const auto window = openWindow();
    showOverlay(fullScreen);
    display.server.kill();
    EXPECT_EQ(quorvel->program().waitForEnd(), 1);
    EXPECT_THAT(quorvel->program().errorLines(), ElementsAre(HasSubstr("X server")));
}

class EndingSignal : public ProgramTest, public testing::WithParamInterface<int> {};

TEST_P(EndingSignal, GivesTheKeyboardBackWhileTheOverlayIsUp)
{
    start();
    const auto window = openWindow();
    showOverlay(fullScreen);
    EXPECT_EQ(quorvel->end(GetParam()), 0);
    EXPECT_THAT(quorvel->program().errorLines(), IsEmpty());
    const auto code = display.keyboard.codeOf(XKB_KEY_k);
    display.keyboard.tap(XKB_KEY_k);
    window->waitForPress(code);
}

INSTANTIATE_TEST_SUITE_P(Each, EndingSignal, testing::Values(SIGTERM, SIGINT, SIGHUP),
                         [](const auto& parameter) { return std::string("SIG") + sigabbrev_np(parameter.param); });

class SecondInstance : public ProgramTest {};

TEST_F(SecondInstance, SaysSoAndLeavesTheFirstAlone)
{
    start();
    const auto window = openWindow();
    const xtest::TemporaryDirectory otherConfiguration;
    xtest::ProgramUnderTest second(display.server, QUORVEL_PROGRAM, otherConfiguration);
    EXPECT_EQ(second.waitForEnd(), 1);
    EXPECT_THAT(second.errorLines(), ElementsAre(HasSubstr("already running")));

    showOverlay(fullScreen);
    display.keyboard.tap(XKB_KEY_a);
    quorvel->waitUntilPlaced(window->id(), screen);
    endCleanly();
}

} // namespace
} // namespace quorvel::e2e
