#include "platform/simulated/SimulatedPreferencesUi.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {
namespace {

class SimulatedPreferencesUiTest : public testing::Test {
protected:
    SimulatedDesktop desktop;
    SimulatedPreferencesUi& preferencesUi = desktop.preferencesUi;
};

TEST_F(SimulatedPreferencesUiTest, AShownWindowMakesThisProgramTheActiveOne)
{
    desktop.launch("Editor");
    const auto window = preferencesUi.createWindow();
    EXPECT_FALSE(preferencesUi.isWindowVisible());

    window->show();

    EXPECT_TRUE(preferencesUi.isWindowVisible());
    EXPECT_EQ(desktop.workspace.frontmostApplication()->process, desktop.workspace.ownProcess());
    EXPECT_EQ(preferencesUi.createdWindows(), 1U);
}

TEST_F(SimulatedPreferencesUiTest, AClosingWindowIsAnnouncedTwiceAndOnce)
{
    const auto window = preferencesUi.createWindow();
    std::vector<std::string> heard;
    const auto ofWindow = desktop.notificationCenter.observe(
        notificationNames::windowWillClose, window->notificationObject(), [&] { heard.emplace_back("window"); });
    const auto ofPreferences = desktop.notificationCenter.observe(
        notificationNames::preferencesWillClose, noNotificationObject, [&] { heard.emplace_back("preferences"); });
    window->show();

    preferencesUi.closeWindows();
    preferencesUi.closeWindows();
    desktop.drain();

    EXPECT_EQ(heard, (std::vector<std::string>{"window", "preferences"}));
    EXPECT_FALSE(preferencesUi.isWindowVisible());
}

TEST_F(SimulatedPreferencesUiTest, AWindowThatWasClosedCanBeShownAgain)
{
    const auto window = preferencesUi.createWindow();
    window->show();
    preferencesUi.closeWindows();

    window->show();

    EXPECT_TRUE(preferencesUi.isWindowVisible());
}

TEST_F(SimulatedPreferencesUiTest, AWindowCanBeRefused)
{
    preferencesUi.refuseWindows();

    EXPECT_EQ(preferencesUi.createWindow(), nullptr);
    EXPECT_EQ(preferencesUi.createdWindows(), 0U);
}

TEST_F(SimulatedPreferencesUiTest, KeysForTheWindowAreSeenByTheLocalMonitorsOnly)
{
    auto& editor = desktop.launch("Editor");
    const auto window = preferencesUi.createWindow();
    std::vector<std::string> seen;
    const auto monitor =
        desktop.eventMonitors.addLocalKeyDownMonitor([&](const KeyEvent& event) { seen.push_back(event.characters); });
    window->show();

    desktop.press(0);
    desktop.drain();

    EXPECT_EQ(seen, (std::vector<std::string>{"a"}));
    EXPECT_TRUE(editor.receivedKeys().empty());
}

} // namespace
} // namespace quorvel
