#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel {
namespace {

TEST(SimulatedDesktop, WorkThatWaitsAtTheEndMayOwnWindows)
{
    bool ran = false;
    {
        SimulatedDesktop desktop;
        std::shared_ptr<OverlayWindow> window = desktop.overlayWindows.createWindow({});
        window->orderFrontRegardless();
        desktop.mainQueue.async([&ran, window] { ran = true; });
    }
    EXPECT_FALSE(ran);
}

TEST(SimulatedBundle, ResourcesAreMissingReadableOrUnreadable)
{
    SimulatedDesktop desktop;
    EXPECT_EQ(desktop.bundle.resource("layouts", "json").value(), std::nullopt);

    desktop.bundle.addResource("layouts", "json", "{}");
    EXPECT_EQ(desktop.bundle.resource("layouts", "json").value(), "{}");

    desktop.bundle.addUnreadableResource("layouts", "json", "No permission");
    EXPECT_EQ(desktop.bundle.resource("layouts", "json").error(), "No permission");

    desktop.bundle.removeResource("layouts", "json");
    EXPECT_EQ(desktop.bundle.resource("layouts", "json").value(), std::nullopt);
}

TEST(SimulatedBundle, ImagesCanBeMissing)
{
    SimulatedDesktop desktop;
    EXPECT_TRUE(desktop.bundle.image("MenuBarIcon").has_value());

    desktop.bundle.removeImage("MenuBarIcon");

    EXPECT_EQ(desktop.bundle.image("MenuBarIcon"), std::nullopt);
}

TEST(SimulatedPermissions, BothAreGivenUntilTheyAreDenied)
{
    SimulatedDesktop desktop;
    EXPECT_TRUE(desktop.permissions.isGranted(Permission::accessibility));
    EXPECT_TRUE(desktop.permissions.isGranted(Permission::inputMonitoring));

    desktop.permissions.deny(Permission::inputMonitoring);
    desktop.permissions.request(Permission::inputMonitoring);

    EXPECT_TRUE(desktop.permissions.isGranted(Permission::accessibility));
    EXPECT_FALSE(desktop.permissions.isGranted(Permission::inputMonitoring));
}

TEST(SimulatedPermissions, TheirSettingsMayNotExist)
{
    SimulatedDesktop desktop;
    EXPECT_TRUE(desktop.permissions.openSettings(Permission::accessibility));

    desktop.permissions.loseSettings();

    EXPECT_FALSE(desktop.permissions.openSettings(Permission::accessibility));
}

TEST(SimulatedWorkspace, AddressesAndTerminationsAreKept)
{
    SimulatedDesktop desktop;
    EXPECT_TRUE(desktop.workspace.open("https://example.org/guide"));
    EXPECT_FALSE(desktop.workspace.open("https: //example.org"));
    desktop.workspace.terminate();

    EXPECT_EQ(desktop.workspace.openedAddresses(), (std::vector<std::string>{"https://example.org/guide"}));
    EXPECT_EQ(desktop.workspace.terminationRequests(), 1U);
}

TEST(SimulatedWorkspace, ARelaunchCompletesLater)
{
    SimulatedDesktop desktop;
    int completions = 0;
    desktop.workspace.relaunch([&] { ++completions; });
    EXPECT_EQ(completions, 0);

    desktop.drain();

    EXPECT_EQ(completions, 1);
}

TEST(SimulatedUpdater, ControllersAndTheirChecksStandInTheJournal)
{
    SimulatedDesktop desktop;
    const auto controller = desktop.updater.createController();
    controller->checkForUpdates();
    controller->checkForUpdates();

    EXPECT_EQ(desktop.journal.count("Updater.createController"), 1U);
    EXPECT_EQ(desktop.journal.count("UpdaterController.checkForUpdates"), 2U);
}

TEST(SimulatedTextMetrics, EveryCharacterIsEquallyWide)
{
    SimulatedDesktop desktop;
    EXPECT_EQ(desktop.textMetrics.measure("Ab", {.size = 10.0}), (Size{12.0, 12.0}));
    EXPECT_EQ(desktop.textMetrics.measure("é", {.size = 10.0, .weight = FontWeight::bold}), (Size{7.0, 12.0}));
}

} // namespace
} // namespace quorvel
