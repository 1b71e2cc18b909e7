#include "platform/simulated/SimulatedWindowServer.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "tests/support/FatalErrors.h"

namespace quorvel {
namespace {

constexpr AxRect somewhere{100.0, 50.0, 800.0, 600.0};

class SimulatedWindowServerTest : public testing::Test {
protected:
    std::vector<std::string> titlesFrontToBack() const
    {
        std::vector<std::string> titles;
        for (const auto* each : desktop.windowServer.onScreenWindows()) {
            titles.push_back(each->title);
        }
        return titles;
    }

    SimulatedDesktop desktop;
    SimulatedApplication& editor = desktop.launch("Editor");
    SimulatedApplication& browser = desktop.launch("Browser");
    SimulatedWindow& notes = desktop.openWindow(editor, "Notes", somewhere);
    SimulatedWindow& letter = desktop.openWindow(editor, "Letter", somewhere);
    SimulatedWindow& news = desktop.openWindow(browser, "News", somewhere);
};

TEST_F(SimulatedWindowServerTest, ANewWindowIsInFrontAndHasTheKeyboard)
{
    EXPECT_EQ(titlesFrontToBack(), (std::vector<std::string>{"News", "Letter", "Notes"}));
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), browser.process());
}

TEST_F(SimulatedWindowServerTest, ActivatingAnApplicationBringsItsFrontWindowForwardAndLeavesTheOthers)
{
    desktop.activate(editor);

    EXPECT_EQ(titlesFrontToBack(), (std::vector<std::string>{"Letter", "News", "Notes"}));
}

TEST_F(SimulatedWindowServerTest, RaisingAWindowLeavesTheKeyboardWhereItIs)
{
    desktop.windowServer.raise(notes);

    EXPECT_EQ(titlesFrontToBack(), (std::vector<std::string>{"Notes", "News", "Letter"}));
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), browser.process());
}

TEST_F(SimulatedWindowServerTest, AMinimizedWindowComesBackInFront)
{
    desktop.minimize(letter);
    EXPECT_EQ(titlesFrontToBack(), (std::vector<std::string>{"News", "Notes"}));
    EXPECT_EQ(desktop.windowServer.frontWindow(editor), &notes);

    desktop.restore(letter);

    EXPECT_EQ(titlesFrontToBack(), (std::vector<std::string>{"Letter", "News", "Notes"}));
}

TEST_F(SimulatedWindowServerTest, TheEndOfTheFrontmostApplicationHandsTheKeyboardOn)
{
    desktop.terminate(browser);
    EXPECT_EQ(titlesFrontToBack(), (std::vector<std::string>{"Letter", "Notes"}));
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), editor.process());
    EXPECT_FALSE(browser.isRunning());
    EXPECT_FALSE(news.isOpen());

    desktop.terminate(editor);
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), std::nullopt);
}

TEST_F(SimulatedWindowServerTest, AProcessIsThereOnce)
{

    EXPECT_EQ(fatalErrorOf([&] { desktop.launch({editor.process(), "Other", ActivationPolicy::regular}); }),
              "Process 500 is running already");
    EXPECT_EQ(
        fatalErrorOf([&] { desktop.launch({desktop.workspace.ownProcess(), "Other", ActivationPolicy::regular}); }),
        "Process 100 is running already");
}

TEST_F(SimulatedWindowServerTest, ProcessNumbersThatAreTakenArePassedOver)
{
    desktop.launch({502, "Fixed", ActivationPolicy::accessory});

    EXPECT_EQ(editor.process(), 500);
    EXPECT_EQ(browser.process(), 501);
    EXPECT_EQ(desktop.launch("Next").process(), 503);
}

TEST_F(SimulatedWindowServerTest, AnApplicationCanBeHiddenFromTheWorkspaceWithItsWindowsStillListed)
{
    browser.hideFromWorkspace();

    EXPECT_EQ(desktop.workspace.runningApplication(browser.process()), std::nullopt);
    EXPECT_EQ(desktop.workspace.frontmostApplication(), std::nullopt);
    EXPECT_EQ(desktop.workspace.runningApplications().size(), 2U);
    EXPECT_EQ(desktop.windowList.onScreenWindows().front().ownerProcess, browser.process());
}

TEST_F(SimulatedWindowServerTest, TheWindowListCanBeIncomplete)
{
    news.listAs({std::nullopt, 0, std::nullopt});
    letter.layer = 5;

    const auto entries = desktop.windowList.onScreenWindows();

    ASSERT_EQ(entries.size(), 3U);
    EXPECT_EQ(entries[0], (WindowListEntry{std::nullopt, 0, std::nullopt}));
    EXPECT_EQ(entries[1], (WindowListEntry{editor.process(), 5, somewhere}));
}

TEST_F(SimulatedWindowServerTest, OwnWindowsAreListedInFrontWithTheirLevel)
{
    const auto overlay = desktop.overlayWindows.createWindow(
        {.contentRect = {0.0, 0.0, 1440.0, 875.0}, .level = windowLevels::popUpMenu});
    overlay->orderFrontRegardless();

    EXPECT_EQ(desktop.windowList.onScreenWindows().front(),
              (WindowListEntry{desktop.workspace.ownProcess(), 101, AxRect{0.0, 25.0, 1440.0, 875.0}}));
}

TEST_F(SimulatedWindowServerTest, AClickFocusesTheWindowUnderItAndPassesThroughOverlays)
{
    desktop.moveWindow(news, {1000.0, 0.0, 200.0, 200.0});
    const auto overlay = desktop.overlayWindows.createWindow({.contentRect = {0.0, 0.0, 1440.0, 875.0}});
    overlay->orderFrontRegardless();
    int presses = 0;
    const auto monitor = desktop.eventMonitors.addGlobalMouseDownMonitor([&] { ++presses; });

    desktop.clickMouse({200.0, 200.0});
    desktop.drain();

    EXPECT_EQ(titlesFrontToBack().front(), "Letter");
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), editor.process());
    EXPECT_EQ(presses, 1);
}

TEST_F(SimulatedWindowServerTest, AClickWhereAMinimizedWindowWasReachesTheOneBehindIt)
{
    desktop.minimize(news);
    desktop.minimize(letter);

    desktop.clickMouse({200.0, 200.0});

    EXPECT_EQ(desktop.windowServer.frontmostProcess(), editor.process());
    EXPECT_EQ(desktop.windowServer.frontWindow(editor), &notes);
    EXPECT_TRUE(news.isMinimized());
}

TEST_F(SimulatedWindowServerTest, AClickOnAnOwnWindowThatTakesTheMouseStaysThere)
{
    const auto own =
        desktop.overlayWindows.createWindow({.contentRect = {0.0, 0.0, 1440.0, 875.0}, .ignoresMouseEvents = false});
    own->orderFrontRegardless();
    int presses = 0;
    const auto monitor = desktop.eventMonitors.addGlobalMouseDownMonitor([&] { ++presses; });

    desktop.clickMouse({200.0, 200.0});
    desktop.drain();

    EXPECT_EQ(desktop.windowServer.frontmostProcess(), browser.process());
    EXPECT_EQ(presses, 0);
}

} // namespace
} // namespace quorvel
