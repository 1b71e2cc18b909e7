#include "platform/simulated/SimulatedPreferencesUi.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedAboutWindow.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "platform/simulated/SimulatedPreferencesWindow.h"

namespace quorvel {
namespace {

class HeardWindowModel final : public PreferencesWindowModel {
public:
    explicit HeardWindowModel(std::vector<std::string>& heard) : heard(heard) {}

    PreferencesWindowContent content() override
    {
        return {.title = "Window", .iconName = {}, .size = {800, 600}, .minimumSize = {400, 300}, .tabs = {}};
    }
    std::size_t selectedTab() const override { return 0; }
    void selectTab(std::size_t) override {}
    void windowDidBecomeActive() override { heard.emplace_back("active"); }
    void windowWillClose() override { heard.emplace_back("closing"); }

private:
    std::vector<std::string>& heard;
};

class SimulatedPreferencesUiTest : public testing::Test {
protected:
    std::vector<std::string> heard;
    HeardWindowModel model{heard};
    SimulatedDesktop desktop;
    SimulatedPreferencesUi& preferencesUi = desktop.preferencesUi;
};

TEST_F(SimulatedPreferencesUiTest, AShownWindowMakesThisProgramTheActiveOne)
{
    desktop.launch("Editor");
    const auto window = preferencesUi.createWindow(model);
    EXPECT_FALSE(preferencesUi.isWindowVisible());

    window->show();

    EXPECT_TRUE(preferencesUi.isWindowVisible());
    EXPECT_EQ(desktop.workspace.frontmostApplication()->process, desktop.workspace.ownProcess());
    EXPECT_EQ(preferencesUi.createdWindows(), 1U);
}

TEST_F(SimulatedPreferencesUiTest, AClosingWindowIsAnnouncedOnceAndToldToItsModel)
{
    const auto window = preferencesUi.createWindow(model);
    const auto ofWindow = desktop.notificationCenter.observe(
        notificationNames::windowWillClose, window->notificationObject(), [&] { heard.emplace_back("announced"); });
    window->show();
    desktop.drain();

    preferencesUi.closeWindows();
    preferencesUi.closeWindows();
    desktop.drain();

    EXPECT_EQ(heard, (std::vector<std::string>{"active", "closing", "announced"}));
    EXPECT_FALSE(preferencesUi.isWindowVisible());
}

TEST_F(SimulatedPreferencesUiTest, AModelHearsOfItsActiveWindowInALaterTurn)
{
    const auto window = preferencesUi.createWindow(model);
    window->show();
    EXPECT_TRUE(heard.empty());

    desktop.drain();

    EXPECT_EQ(heard, (std::vector<std::string>{"active"}));
}

TEST_F(SimulatedPreferencesUiTest, AWindowThatGoesClosesAndIsNoLongerActive)
{
    auto window = preferencesUi.createWindow(model);
    window->show();
    window.reset();
    desktop.drain();

    EXPECT_EQ(heard, (std::vector<std::string>{"closing"}));
    EXPECT_TRUE(preferencesUi.preferencesWindows().empty());
}

TEST_F(SimulatedPreferencesUiTest, AWindowIsNeverSmallerThanItsModelAllows)
{
    const auto window = preferencesUi.createWindow(model);
    auto& shown = *preferencesUi.preferencesWindows().at(0);
    EXPECT_EQ(shown.size(), (Size{800, 600}));

    shown.resize({500, 200});

    EXPECT_EQ(shown.size(), (Size{500, 300}));
}

TEST_F(SimulatedPreferencesUiTest, AnAboutWindowShowsItsContent)
{
    desktop.launch("Editor");
    const AboutContent content{"About", "Logo", "Name", "Version 1"};
    const auto window = preferencesUi.createAboutWindow(content);
    EXPECT_FALSE(preferencesUi.aboutWindows().at(0)->isVisible());

    window->show();

    EXPECT_TRUE(preferencesUi.aboutWindows().at(0)->isVisible());
    EXPECT_EQ(preferencesUi.aboutWindows().at(0)->content, content);
    EXPECT_EQ(desktop.workspace.frontmostApplication()->process, desktop.workspace.ownProcess());
}

TEST_F(SimulatedPreferencesUiTest, AWindowThatWasClosedCanBeShownAgain)
{
    const auto window = preferencesUi.createWindow(model);
    window->show();
    preferencesUi.closeWindows();

    window->show();

    EXPECT_TRUE(preferencesUi.isWindowVisible());
}

TEST_F(SimulatedPreferencesUiTest, AWindowCanBeRefused)
{
    preferencesUi.refuseWindows();

    EXPECT_EQ(preferencesUi.createWindow(model), nullptr);
    EXPECT_EQ(preferencesUi.createAboutWindow({}), nullptr);
    EXPECT_EQ(preferencesUi.createdWindows(), 0U);
}

TEST_F(SimulatedPreferencesUiTest, KeysForTheWindowAreSeenByTheLocalMonitorsOnly)
{
    auto& editor = desktop.launch("Editor");
    const auto window = preferencesUi.createWindow(model);
    std::vector<std::string> seen;
    const auto monitor = desktop.eventMonitors.addLocalKeyDownMonitor([&](const KeyEvent& event) {
        seen.push_back(event.characters);
        return EventHandling::pass;
    });
    window->show();

    desktop.press(0);
    desktop.drain();

    EXPECT_EQ(seen, (std::vector<std::string>{"a"}));
    EXPECT_TRUE(editor.receivedKeys().empty());
}

} // namespace
} // namespace quorvel
