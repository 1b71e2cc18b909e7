#include "preferences/AboutWindowController.h"

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedAboutWindow.h"
#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {
namespace {

TEST(AboutWindowController, ItShowsTheProgramsNameAndVersion)
{
    SimulatedDesktop desktop;
    desktop.bundle.version = "1.4.2";
    const auto platform = desktop.platform();
    AboutWindowController controller(platform);
    controller.showWindow();
    const auto& windows = desktop.preferencesUi.aboutWindows();
    ASSERT_EQ(windows.size(), 1U);
    EXPECT_EQ(windows[0]->content, (AboutContent{"About Quorvel", "ColorLogoTransparent", "Quorvel", "Version 1.4.2"}));
    EXPECT_TRUE(windows[0]->isVisible());
}

TEST(AboutWindowController, AClosedWindowIsShownAgain)
{
    SimulatedDesktop desktop;
    const auto platform = desktop.platform();
    AboutWindowController controller(platform);
    controller.showWindow();
    desktop.preferencesUi.aboutWindows()[0]->close();
    controller.showWindow();
    EXPECT_EQ(desktop.preferencesUi.aboutWindows().size(), 1U);
    EXPECT_TRUE(desktop.preferencesUi.aboutWindows()[0]->isVisible());
}

TEST(AboutWindowController, WhereNoWindowCanBeMadeNothingHappens)
{
    SimulatedDesktop desktop;
    desktop.preferencesUi.refuseWindows();
    auto platform = desktop.platform();
    AboutWindowController refused(platform);
    refused.showWindow();
    platform.preferencesUi = nullptr;
    AboutWindowController without(platform);
    without.showWindow();
    EXPECT_EQ(desktop.journal.count("AboutWindow.show"), 0U);
}

} // namespace
} // namespace quorvel
