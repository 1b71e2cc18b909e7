#include "preferences/PreferencesWindowController.h"

#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "platform/simulated/SimulatedPreferencesWindow.h"
#include "tests/support/FatalErrors.h"
#include "tests/unit/layouts/CatalogueFixture.h"
#include "tests/unit/preferences/FormReading.h"

namespace quorvel {
namespace {

using Lines = std::vector<std::string>;

class PreferencesWindowControllerTest : public testing::Test {
protected:
    SimulatedPreferencesWindow& window() const { return *desktop.preferencesUi.preferencesWindows().at(0); }

    Form formOf(std::size_t tab) { return std::get<FormModel*>(controller->content().tabs.at(tab).pane)->form(); }

    void showGrid(std::size_t tab)
    {
        std::get<FormModel*>(controller->content().tabs.at(tab).pane)->set("showPreviewGrid", true);
    }

    bool showsGrid(std::size_t tab) { return controlOf<ToggleControl>(formOf(tab), "showPreviewGrid").isOn; }

    std::string accessibilitySymbol() { return controlOf<StatusControl>(formOf(0), "accessibility").symbol; }

    SimulatedDesktop desktop;
    const Platform platform = desktop.platform();
    std::optional<PreferencesWindowController> controller{std::in_place, platform, nullptr};
};

constexpr std::size_t shortcutsTab = 1;
constexpr std::size_t layoutTab = 2;
constexpr std::size_t switcherTab = 3;
constexpr std::size_t layoutsTab = 5;

TEST_F(PreferencesWindowControllerTest, TheWindowHasItsTitleSizesAndIcon)
{
    const auto content = controller->content();
    EXPECT_EQ(content.title, "Preferences");
    EXPECT_EQ(content.iconName, "ColorLogoTransparent");
    EXPECT_EQ(content.size, (Size{1050.0, 785.0}));
    EXPECT_EQ(content.minimumSize, (Size{950.0, 705.0}));
}

TEST_F(PreferencesWindowControllerTest, TheTabsStandInOrderWithTheirSymbols)
{
    Lines tabs;
    for (const auto& tab : controller->content().tabs) {
        tabs.push_back(tab.title + ": " + tab.symbol);
    }
    EXPECT_EQ(tabs, (Lines{"General: gearshape", "Shortcuts: keyboard", "Layout Appearance: paintbrush",
                           "Window Switcher Appearance: switch.2",
                           "Move/Resize Appearance: arrow.up.left.and.arrow.down.right", "Layouts: square.grid.2x2"}));
    EXPECT_EQ(controller->selectedTab(), 0U);
}

TEST_F(PreferencesWindowControllerTest, TheWindowIsNeverSmallerThanItsContentAllows)
{
    controller->showWindow();
    EXPECT_EQ(window().size(), (Size{1050.0, 785.0}));
    window().resize({900.0, 700.0});
    EXPECT_EQ(window().size(), (Size{950.0, 705.0}));
}

TEST_F(PreferencesWindowControllerTest, ShownTwiceItIsOneWindowCenteredAndActivatedTwice)
{
    controller->showWindow();
    desktop.launch("Editor");
    window().move();
    EXPECT_FALSE(window().isCentered());
    controller->showWindow();
    EXPECT_TRUE(window().isCentered());
    EXPECT_EQ(desktop.workspace.frontmostApplication()->process, desktop.workspace.ownProcess());
    EXPECT_EQ(desktop.preferencesUi.createdWindows(), 1U);
    EXPECT_EQ(desktop.journal.count("PreferencesWindow.show"), 2U);
}

TEST_F(PreferencesWindowControllerTest, ItsClosingIsAnnouncedOnceWithoutObject)
{
    controller->showWindow();
    desktop.journal.clear();
    int withWindow = 0;
    const auto observation = desktop.notificationCenter.observe(notificationNames::preferencesWillClose,
                                                                window().notificationObject(), [&] { ++withWindow; });
    window().close();
    window().close();
    desktop.drain();
    EXPECT_EQ(withWindow, 0);
    EXPECT_EQ(desktop.journal.count("NotificationCenter.post(preferencesWillCloseNotification"), 1U);
}

TEST_F(PreferencesWindowControllerTest, AControllerThatGoesWithItsWindowOpenAnnouncesItsClosing)
{
    controller->showWindow();
    desktop.journal.clear();
    controller.reset();
    EXPECT_EQ(desktop.journal.count("NotificationCenter.post(preferencesWillCloseNotification"), 1U);
}

TEST_F(PreferencesWindowControllerTest, ItOpensAgainAtTheTabWhereItWasClosed)
{
    controller->showWindow();
    controller->selectTab(layoutTab);
    window().close();
    controller->showWindow();
    EXPECT_EQ(controller->selectedTab(), layoutTab);
}

TEST_F(PreferencesWindowControllerTest, AnUnknownTabIsAFatalError)
{
    EXPECT_EQ(fatalErrorOf([&] { controller->selectTab(6); }), "There is no such tab in the preferences");
}

TEST_F(PreferencesWindowControllerTest, TheSwitcherPanesGridIsHiddenAgainWhenTheWindowOpensAgain)
{
    controller->showWindow();
    controller->selectTab(switcherTab);
    showGrid(switcherTab);
    controller->showWindow(); // is open already
    EXPECT_TRUE(showsGrid(switcherTab));
    window().close();
    controller->showWindow();
    EXPECT_FALSE(showsGrid(switcherTab));
}

TEST_F(PreferencesWindowControllerTest, TheSwitcherPanesGridIsHiddenAgainWhenItsTabIsChosenAgain)
{
    controller->showWindow();
    controller->selectTab(switcherTab);
    showGrid(switcherTab);
    controller->selectTab(switcherTab); // is in front already
    EXPECT_TRUE(showsGrid(switcherTab));
    controller->selectTab(0);
    controller->selectTab(switcherTab);
    EXPECT_FALSE(showsGrid(switcherTab));
}

TEST_F(PreferencesWindowControllerTest, TheLayoutPanesGridStays)
{
    controller->showWindow();
    controller->selectTab(layoutTab);
    showGrid(layoutTab);
    window().close();
    controller->showWindow();
    EXPECT_TRUE(showsGrid(layoutTab));
}

TEST_F(PreferencesWindowControllerTest, ARecordingEndsWhenItsPaneGoesOutOfSight)
{
    const auto record = [&] {
        std::get<FormModel*>(controller->content().tabs.at(shortcutsTab).pane)->press("activateOverlayKeyCode.record");
    };
    controller->showWindow();
    controller->selectTab(shortcutsTab);
    record();
    EXPECT_EQ(desktop.eventMonitors.keyMonitorCount(), 1U);
    controller->selectTab(0);
    EXPECT_EQ(desktop.eventMonitors.keyMonitorCount(), 0U);

    controller->selectTab(shortcutsTab);
    record();
    window().close();
    EXPECT_EQ(desktop.eventMonitors.keyMonitorCount(), 0U);
}

TEST_F(PreferencesWindowControllerTest, TheLayoutsPaneFollowsWhatAnotherProgramSelects)
{
    desktop.bundle.addResource("layouts", "json", std::string(sevenLayouts));
    controller->showWindow();
    auto& layouts = *std::get<LayoutsPaneModel*>(controller->content().tabs.at(layoutsTab).pane);
    EXPECT_TRUE(layouts.content().selected.empty());
    desktop.userDefaults.changeFromOutside("selectedLayoutIDs", {PropertyArray{{std::string("centered")}}});
    desktop.drain();
    EXPECT_EQ(layouts.content().selected.size(), 1U);
}

TEST_F(PreferencesWindowControllerTest, PermissionsAreReadWhenTheirPaneAppears)
{
    desktop.permissions.deny(Permission::accessibility);
    controller->showWindow();
    EXPECT_EQ(accessibilitySymbol(), "xmark.circle.fill");
}

TEST_F(PreferencesWindowControllerTest, PermissionsAreReadAgainWhenTheWindowBecomesActive)
{
    controller->showWindow();
    desktop.drain();
    auto& editor = desktop.launch("Editor");
    desktop.permissions.deny(Permission::accessibility);
    desktop.activate(editor);
    desktop.drain();
    EXPECT_EQ(accessibilitySymbol(), "checkmark.circle.fill");
    window().activate();
    desktop.drain();
    EXPECT_EQ(accessibilitySymbol(), "xmark.circle.fill");
}

} // namespace
} // namespace quorvel
