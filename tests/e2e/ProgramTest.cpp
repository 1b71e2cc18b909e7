#include "e2e/ProgramTest.h"

#include <algorithm>

#include <fmt/format.h>

namespace quorvel::e2e {

using testing::IsEmpty;
using xtest::MonitorRole;

ProgramTest::ProgramTest() : ProgramTest({.width = 3200, .height = 1080})
{
    display.monitors.arrange({{"left", screen, MonitorRole::primary}});
    display.startWindowManager(xtest::WindowManager::openbox);
}

RunningQuorvel& ProgramTest::start(const xtest::ProgramUnderTest::Options& options)
{
    quorvel = std::make_unique<RunningQuorvel>(display, QUORVEL_PROGRAM, configuration, options);
    if (firstSettings.empty()) {
        firstSettings = storedSettings();
    }
    return *quorvel;
}

void ProgramTest::endCleanly()
{
    EXPECT_EQ(quorvel->end(), 0);
    EXPECT_THAT(quorvel->program().errorLines(), IsEmpty());
}

std::unique_ptr<xtest::TestWindow> ProgramTest::openWindow(const xtest::PixelRect& rect)
{
    xtest::TestWindow::Options options;
    options.rect = rect;
    auto window = std::make_unique<xtest::TestWindow>(display.server, options);
    window->map();
    display.client.activate(window->id());
    return window;
}

void ProgramTest::waitForPanel(const xtest::StrutPanel& panel)
{
    display.client.waitFor("the panel to be managed",
                           [&] { return std::ranges::count(display.client.managedWindows(), panel.id()) == 1; });
}

void ProgramTest::switchSecondScreenOn()
{
    display.monitors.arrange({{"left", screen, MonitorRole::primary}, {"right", secondScreen, MonitorRole::secondary}});
}

void ProgramTest::showOverlay(const UnitFrames& frames, const xtest::PixelRect& area)
{
    quorvel->pressHotKey();
    quorvel->waitForFrames(frames, area);
}

void ProgramTest::typeIntoOverlay(xcb_keysym_t key)
{
    display.keyboard.tap(key);
    quorvel->program().waitForLineStartingWith("Blocker blocked key: ");
}

void ProgramTest::writeSettings(std::string_view entries)
{
    configuration.write("quorvel/settings.plist",
                        fmt::format("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                    "<plist version=\"1.0\">\n<dict>\n{}\n</dict>\n</plist>\n",
                                    entries));
}

} // namespace quorvel::e2e
