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

TEST(SimulatedWorkspace, ARelaunchThatFailsCompletesAllTheSame)
{
    SimulatedDesktop desktop;
    int completions = 0;
    desktop.workspace.relaunch([&] { ++completions; });
    desktop.workspace.failRelaunches();
    desktop.workspace.relaunch([&] { ++completions; });
    desktop.drain();

    EXPECT_EQ(completions, 2);
    EXPECT_EQ(desktop.workspace.relaunches(), 1U);
}

TEST(SimulatedUserDefaults, OnlyAChangeByOthersIsAnnouncedAndLater)
{
    SimulatedDesktop desktop;
    int changes = 0;
    auto observation = desktop.userDefaults.observeForeignChanges([&] { ++changes; });
    desktop.userDefaults.setObject("key", {true});
    desktop.drain();
    EXPECT_EQ(changes, 0);

    desktop.userDefaults.changeFromOutside("key", {false});
    EXPECT_EQ(desktop.userDefaults.object("key"), PropertyValue{false});
    EXPECT_EQ(changes, 0);
    desktop.drain();
    EXPECT_EQ(changes, 1);

    observation.reset();
    desktop.userDefaults.changeFromOutside("key", {true});
    desktop.drain();
    EXPECT_EQ(changes, 1);
}

TEST(SimulatedLoginItem, ARefusalKeepsTheStatus)
{
    SimulatedDesktop desktop;
    desktop.loginItem.setStatus(LoginItemStatus::enabled);
    desktop.loginItem.refuse("No.");
    EXPECT_EQ(desktop.loginItem.unregisterItem().error(), "No.");
    EXPECT_EQ(desktop.loginItem.registerItem().error(), "No.");
    EXPECT_EQ(desktop.loginItem.status(), LoginItemStatus::enabled);
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

TEST(SimulatedEventMonitors, ASwallowedKeyReachesNoLaterMonitorAndNoWindow)
{
    SimulatedDesktop desktop;
    int laterMonitor = 0;
    int panelKeys = 0;
    const auto panel = desktop.overlayWindows.createPanel({}, [&](const KeyEvent&) { ++panelKeys; });
    panel->orderFrontRegardless();
    desktop.workspace.activateSelf();
    panel->makeKey();
    auto swallowing = desktop.eventMonitors.addLocalKeyDownMonitor([](const KeyEvent& event) {
        return event.keyCode == keyCodes::tab ? EventHandling::swallow : EventHandling::pass;
    });
    const auto later = desktop.eventMonitors.addLocalKeyDownMonitor([&](const KeyEvent&) {
        ++laterMonitor;
        return EventHandling::pass;
    });

    desktop.press(keyCodes::tab);
    desktop.drain();
    EXPECT_EQ(laterMonitor, 0);
    EXPECT_EQ(panelKeys, 0);

    desktop.press(keyCodes::escape);
    desktop.drain();
    EXPECT_EQ(laterMonitor, 1);
    EXPECT_EQ(panelKeys, 1);
}

TEST(SimulatedDates, DaysAreThoseOfUniversalTime)
{
    const SimulatedDates dates;
    EXPECT_EQ(dates.mediumText(dates.now()), "Jan 1, 2025");
    EXPECT_EQ(dates.mediumText({0.0}), "Jan 1, 2001");
    EXPECT_EQ(dates.mediumText({-1.5}), "Dec 31, 2000");
}

} // namespace
} // namespace quorvel
