#include "preferences/GeneralPreferencesView.h"

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/simulated/SimulatedDesktop.h"
#include "tests/support/FatalErrors.h"
#include "tests/unit/preferences/FormReading.h"

namespace quorvel {
namespace {

using Lines = std::vector<std::string>;

class GeneralPreferencesViewTest : public testing::Test {
protected:
    template <class Control>
    Control control(std::string_view id) const
    {
        return controlOf<Control>(pane.form(), id);
    }

    SimulatedDesktop desktop;
    const Platform platform = desktop.platform();
    std::unique_ptr<UpdaterController> updater = desktop.updater.createController();
    GeneralPreferencesView pane{platform, updater.get()};
};

TEST_F(GeneralPreferencesViewTest, ItsControlsStandInOrder)
{
    EXPECT_EQ(outline(pane.form()), (Lines{
                                        "# Startup",
                                        "startAtLogin: Launch Quorvel at login, toggle",
                                        "# Updates",
                                        "automaticallyChecksForUpdates: Automatically check for updates, toggle",
                                        "checkForUpdates: , button Check for Updates...",
                                        "# Permissions",
                                        "accessibility: Accessibility, status, button Open Settings",
                                        "inputMonitoring: Input Monitoring, status, button Open Settings",
                                    }));
    EXPECT_TRUE(pane.form().buttons.empty());
}

TEST_F(GeneralPreferencesViewTest, ThePermissionsSayWhatTheyAreFor)
{
    EXPECT_EQ(rowOf(pane.form(), "accessibility").help, "Global shortcuts and window management.");
    EXPECT_EQ(rowOf(pane.form(), "inputMonitoring").help, "Keyboard handling in move/resize mode.");
}

TEST_F(GeneralPreferencesViewTest, TheLoginToggleIsTheSessionsLoginItem)
{
    int changes = 0;
    const auto observation = pane.observe([&] { ++changes; });
    pane.set("startAtLogin", true);
    EXPECT_TRUE(control<ToggleControl>("startAtLogin").isOn);
    EXPECT_EQ(desktop.loginItem.status(), LoginItemStatus::enabled);
    EXPECT_EQ(changes, 1);
}

TEST_F(GeneralPreferencesViewTest, ARefusedLoginItemIsOffWithOneLineUnderIt)
{
    EXPECT_EQ(rowOf(pane.form(), "startAtLogin").help, "");
    desktop.loginItem.refuse("The folder cannot be written.");
    pane.set("startAtLogin", true);
    EXPECT_FALSE(control<ToggleControl>("startAtLogin").isOn);
    EXPECT_EQ(rowOf(pane.form(), "startAtLogin").help, "The folder cannot be written.");
}

TEST_F(GeneralPreferencesViewTest, AutomaticChecksAreTheUpdatersOwnProperty)
{
    EXPECT_TRUE(control<ToggleControl>("automaticallyChecksForUpdates").isOn);
    pane.set("automaticallyChecksForUpdates", false);
    EXPECT_FALSE(desktop.updater.checksAutomatically);
    EXPECT_FALSE(control<ToggleControl>("automaticallyChecksForUpdates").isOn);
    EXPECT_TRUE(desktop.userDefaults.contents().empty());

    const auto nextRun = desktop.updater.createController();
    EXPECT_FALSE(UpdaterViewModel(nextRun.get()).automaticallyChecksForUpdates());
}

TEST_F(GeneralPreferencesViewTest, TheButtonChecksForUpdates)
{
    pane.press(control<ButtonControl>("checkForUpdates").button.id);
    EXPECT_EQ(desktop.journal.count("UpdaterController.checkForUpdates"), 1U);
}

TEST_F(GeneralPreferencesViewTest, APermissionShowsWhetherItIsGrantedAndAsksNobody)
{
    desktop.permissions.deny(Permission::inputMonitoring);
    pane.refresh();
    const auto accessibility = control<StatusControl>("accessibility");
    const auto inputMonitoring = control<StatusControl>("inputMonitoring");
    EXPECT_EQ(accessibility.symbol, "checkmark.circle.fill");
    EXPECT_EQ(accessibility.tone, StatusTone::positive);
    EXPECT_EQ(inputMonitoring.symbol, "xmark.circle.fill");
    EXPECT_EQ(inputMonitoring.tone, StatusTone::negative);
    EXPECT_EQ(desktop.journal.count("Permissions.request"), 0U);
    EXPECT_TRUE(desktop.alerts.shown().empty());
}

TEST_F(GeneralPreferencesViewTest, AGrantShowsAfterARefreshOnly)
{
    desktop.permissions.deny(Permission::accessibility);
    pane.refresh();
    int changes = 0;
    const auto observation = pane.observe([&] { ++changes; });
    desktop.permissions.grant(Permission::accessibility);
    EXPECT_EQ(control<StatusControl>("accessibility").symbol, "xmark.circle.fill");
    pane.refresh();
    EXPECT_EQ(control<StatusControl>("accessibility").symbol, "checkmark.circle.fill");
    EXPECT_EQ(changes, 1);
}

TEST_F(GeneralPreferencesViewTest, TheButtonsOpenThePlaceOfTheirPermission)
{
    pane.press(control<StatusControl>("accessibility").button.id);
    pane.press(control<StatusControl>("inputMonitoring").button.id);
    EXPECT_EQ(desktop.journal.entries({"Permissions.openSettings"}),
              (Lines{"Permissions.openSettings(accessibility)", "Permissions.openSettings(inputMonitoring)"}));
}

TEST_F(GeneralPreferencesViewTest, WhereThereIsNoSuchPlaceTheButtonsAreDisabled)
{
    EXPECT_TRUE(control<StatusControl>("accessibility").button.isEnabled);
    desktop.permissions.loseSettings();
    EXPECT_FALSE(control<StatusControl>("accessibility").button.isEnabled);
}

TEST_F(GeneralPreferencesViewTest, WhatABuildLacksIsDisabled)
{
    auto ports = desktop.platform();
    ports.loginItem = nullptr;
    GeneralPreferencesView small(ports, nullptr);
    const auto form = small.form();
    EXPECT_FALSE(rowOf(form, "startAtLogin").isEnabled);
    EXPECT_FALSE(rowOf(form, "automaticallyChecksForUpdates").isEnabled);
    EXPECT_FALSE(controlOf<ButtonControl>(form, "checkForUpdates").button.isEnabled);
    EXPECT_TRUE(rowOf(pane.form(), "startAtLogin").isEnabled);
    EXPECT_TRUE(controlOf<ButtonControl>(pane.form(), "checkForUpdates").button.isEnabled);

    small.set("startAtLogin", true);
    small.set("automaticallyChecksForUpdates", true);
    small.press("checkForUpdates.button");
    EXPECT_EQ(outline(small.form()), outline(pane.form()));
    EXPECT_EQ(desktop.journal.count("UpdaterController."), 0U);
}

TEST_F(GeneralPreferencesViewTest, ControlsThatAreNotThereAreAFatalError)
{
    EXPECT_EQ(fatalErrorOf([&] { pane.set("nonsense", true); }), "There is no control \"nonsense\"");
    EXPECT_EQ(fatalErrorOf([&] { pane.press("nonsense"); }), "There is no control \"nonsense\"");
}

} // namespace
} // namespace quorvel
