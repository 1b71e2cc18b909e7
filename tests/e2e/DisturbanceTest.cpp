#include "e2e/ModesTest.h"
#include "support/ReliabilityRecord.h"

namespace quorvel::e2e {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class DisturbanceReliability : public ModesTest {};

TEST_F(DisturbanceReliability, AWindowThatClosesBeforeTheLetterIsForgotten)
{
    ReliabilityRecord record("X11, the whole program", "the window closes before the letter");
    record.tried();
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
    record.survived("“Window is gone; nothing was placed”");
}

// The program hears of both at once.
TEST_F(DisturbanceReliability, AWindowThatClosesInTheMomentOfTheLetterIsForgotten)
{
    ReliabilityRecord record("X11, the whole program", "the window closes just before the letter, on a busy machine");
    record.tried();
    start();
    const auto remaining = openWindow();
    auto closing = openWindow({300, 300, 400, 300});
    showOverlay(fullScreen);
    const auto id = closing->id();
    kill(quorvel->program().id(), SIGSTOP);
    closing->vanish();
    display.client.waitFor("the window to close", [&] { return !display.client.exists(id); });
    display.keyboard.tap(XKB_KEY_a);
    kill(quorvel->program().id(), SIGCONT);
    quorvel->program().waitForLine("Window is gone; nothing was placed");
    quorvel->waitUntilIdle();

    display.client.activate(remaining->id());
    showOverlay(fullScreen);
    display.keyboard.tap(XKB_KEY_a);
    quorvel->waitUntilPlaced(remaining->id(), screen);
    endCleanly();
    record.survived("“Window is gone; nothing was placed”");
}

TEST_F(DisturbanceReliability, StartedBeforeTheWindowManagerItWorksOnceThatIsThere)
{
    ReliabilityRecord record("X11, the whole program", "Quorvel starts before the window manager");
    record.tried();
    display.windowManager().stop();
    start();
    display.windowManager().restart();
    quorvel->program().waitForLine("Window manager has started");
    const auto window = openWindow();
    showOverlay(fullScreen);
    display.keyboard.tap(XKB_KEY_a);
    quorvel->waitUntilPlaced(window->id(), screen);
    endCleanly();
    record.survived("“Window manager has started”");
}

TEST_F(DisturbanceReliability, AScreenMayVanishUnderTheOverlay)
{
    ReliabilityRecord record("X11, the whole program", "the screen that shows the overlay is unplugged");
    record.tried();
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
    record.survived("");
}

TEST_F(DisturbanceReliability, WithoutAWindowTheKeyboardStaysFree)
{
    ReliabilityRecord record("X11, the whole program", "the hot key is pressed without any window");
    record.tried();
    start();
    quorvel->pressHotKey();
    quorvel->program().waitForLine("Frontmost element invalid; cannot show overlay");
    quorvel->waitUntilIdle();
    endCleanly();
    record.survived("“Frontmost element invalid; cannot show overlay”");
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
