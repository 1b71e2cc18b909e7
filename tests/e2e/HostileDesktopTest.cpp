#include <csignal>

#include <fmt/format.h>

#include "e2e/OutputsTest.h"
#include "support/ReliabilityRecord.h"

namespace quorvel::e2e {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr auto desktop = "X11, the whole program";

std::string during(const std::string& fault, Mode mode)
{
    const std::string name = mode == Mode::moveResize ? "moving and resizing" : "the " + nameOf(mode);
    return fmt::format("{} during {}", fault, name);
}

// What the person's desktop does in the middle of a mode.
class HostileDesktopReliability : public ModesTest, public testing::WithParamInterface<Mode> {};

TEST_P(HostileDesktopReliability, TheWindowManagerIsKilledAndReplaced)
{
    ReliabilityRecord record(desktop, during("the window manager is killed and replaced", GetParam()));
    start();
    const auto window = openWindow();
    const auto other = openWindow({900, 300, 400, 300});
    for (const auto successor : {xtest::WindowManager::openbox, xtest::WindowManager::metacity}) {
        if (!xtest::WindowManagerProcess::isInstalled(successor)) {
            continue;
        }
        record.tried();
        display.client.activate(window->id());
        enter(GetParam(), window->id());
        display.windowManager().stop();
        quorvel->program().waitForLine("Window manager is gone; windows may stay where they are");
        display.windowManager().replaceWith(successor);
        quorvel->program().waitForLine("Window manager has started");
        leave();
        workAnew(GetParam());
        record.survived("“Window manager is gone; windows may stay where they are”");
    }
    endCleanly();
}

TEST_P(HostileDesktopReliability, TheKeyComesWhileThereIsNoWindowManager)
{
    ReliabilityRecord record(desktop, during("the window manager is gone when the key comes,", GetParam()));
    start();
    const auto window = openWindow();
    enter(GetParam(), window->id());
    record.tried();
    display.windowManager().stop();
    quorvel->program().waitForLine("Window manager is gone; windows may stay where they are");
    display.keyboard.tap(GetParam() == Mode::moveResize ? XKB_KEY_Right : XKB_KEY_a);
    leave();
    display.windowManager().restart();
    quorvel->program().waitForLine("Window manager has started");
    workAnew(GetParam());
    record.survived("“Window manager is gone; windows may stay where they are”");
    endCleanly();
}

TEST_P(HostileDesktopReliability, MonitorsAreUnpluggedAndPlugged)
{
    ReliabilityRecord record(desktop, during("monitors are unplugged and plugged", GetParam()));
    switchSecondScreenOn();
    start();
    const auto window = openWindow();
    for (int round = 0; round < 3; ++round) {
        record.tried();
        enter(GetParam(), window->id());
        display.monitors.arrange({{"left", screen, xtest::MonitorRole::primary}});
        switchSecondScreenOn();
        display.monitors.arrange({{"left", screen, xtest::MonitorRole::primary}});
        leave();
        display.client.activate(window->id());
        work(GetParam(), window->id());
        switchSecondScreenOn();
        record.survived("");
    }
    endCleanly();
}

TEST_P(HostileDesktopReliability, TheServerIsKilled)
{
    ReliabilityRecord record(desktop, during("the X server is killed", GetParam()));
    start();
    const auto window = openWindow();
    enter(GetParam(), window->id());
    record.tried();
    display.server.kill();
    EXPECT_EQ(quorvel->program().waitForEnd(), 1);
    EXPECT_THAT(quorvel->program().errorLines(), ElementsAre(HasSubstr("X server")));
    record.survived("“The X server closed the connection.”");
}

TEST_P(HostileDesktopReliability, TheProgramItselfIsKilled)
{
    ReliabilityRecord record(desktop, during("Quorvel itself is killed", GetParam()));
    start();
    const auto window = openWindow();
    enter(GetParam(), window->id());
    record.tried();
    EXPECT_EQ(quorvel->end(SIGKILL), 128 + SIGKILL);
    const auto code = display.keyboard.codeOf(XKB_KEY_k);
    display.keyboard.tap(XKB_KEY_k);
    window->waitForPress(code);
    start();
    work(GetParam(), window->id());
    endCleanly();
    record.survived("the windows of the mode go");
}

INSTANTIATE_TEST_SUITE_P(In, HostileDesktopReliability, testing::ValuesIn(allModes),
                         [](const auto& parameter) { return nameOf(parameter.param); });

// Monitors with outputs of their own: with them the root itself grows and shrinks under what is shown.
class HostileOutputsReliability : public OutputsTest, public testing::WithParamInterface<Mode> {};

TEST_P(HostileOutputsReliability, AreUnpluggedAndPlugged)
{
    ReliabilityRecord record(desktop, during("outputs are unplugged and plugged", GetParam()));
    const xtest::Monitor first{"left", screen, xtest::MonitorRole::primary};
    const xtest::Monitor second{"right", secondScreen, xtest::MonitorRole::secondary};
    display.arrange({first, second});
    display.startWindowManager(xtest::WindowManager::openbox);
    start();
    const auto window = openWindow();
    for (int round = 0; round < 3; ++round) {
        record.tried();
        enter(GetParam(), window->id());
        display.arrange({first});
        display.arrange({first, second});
        display.arrange({first});
        leave();
        display.client.activate(window->id());
        work(GetParam(), window->id());
        display.arrange({first, second});
        record.survived("");
    }
    endCleanly();
}

INSTANTIATE_TEST_SUITE_P(In, HostileOutputsReliability, testing::ValuesIn(allModes),
                         [](const auto& parameter) { return nameOf(parameter.param); });

} // namespace
} // namespace quorvel::e2e
