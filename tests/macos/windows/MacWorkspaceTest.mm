#include "platform/macos/windows/MacWorkspace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "macos/fakes/FakeDesktop.h"
#include "platform/macos/desktop/MacMainQueue.h"
#include "platform/macos/desktop/MacPermissions.h"
#include "platform/macos/windows/MacWindowList.h"

namespace quorvel::macos {
namespace {

using testing::ElementsAre;

class MacWorkspaceTest : public testing::Test {
protected:
    SimulatedDesktop desktop;
    fakes::FakeDesktop mac{desktop};
    MacMainQueue mainQueue;
    MacWorkspace workspace{mainQueue};
    MacPermissions permissions{workspace};
};

TEST_F(MacWorkspaceTest, ThisProgramIsKnownByItsProcess)
{
    EXPECT_EQ(workspace.ownProcess(), getpid());
    EXPECT_EQ(workspace.runningApplication(getpid())->activationPolicy, ActivationPolicy::accessory);
}

TEST_F(MacWorkspaceTest, AnApplicationMayHaveNoName)
{
    desktop.launch(RunningApplication{700, std::nullopt, ActivationPolicy::prohibited});

    EXPECT_EQ(workspace.runningApplication(700), (RunningApplication{700, std::nullopt, ActivationPolicy::prohibited}));
}

TEST_F(MacWorkspaceTest, WhereNobodyIsInFrontThereIsNoFrontmostApplication)
{
    desktop.leaveNobodyInFront();

    EXPECT_EQ(workspace.frontmostApplication(), std::nullopt);
}

TEST_F(MacWorkspaceTest, ARelaunchStartsASecondInstanceAndTellsLater)
{
    int completions = 0;
    workspace.relaunch([&] { ++completions; });
    EXPECT_EQ(completions, 0);
    desktop.drain();

    EXPECT_EQ(desktop.workspace.relaunches(), 1U);
    EXPECT_EQ(completions, 1);
}

TEST_F(MacWorkspaceTest, AnAddressIsOpenedAsItIs)
{
    EXPECT_TRUE(workspace.open("https://example.org/a?b#c"));
    EXPECT_FALSE(workspace.open("example"));

    EXPECT_THAT(desktop.workspace.openedAddresses(), ElementsAre("https://example.org/a?b#c"));
}

TEST_F(MacWorkspaceTest, PermissionsAreReadFromTheSystemEachTime)
{
    for (const auto permission : {Permission::accessibility, Permission::inputMonitoring}) {
        EXPECT_TRUE(permissions.isGranted(permission));
        desktop.permissions.deny(permission);
        EXPECT_FALSE(permissions.isGranted(permission));
        permissions.request(permission);
    }

    EXPECT_EQ(desktop.journal.count("Permissions.request(accessibility)"), 1U);
    EXPECT_EQ(desktop.journal.count("Permissions.request(inputMonitoring)"), 1U);
}

TEST_F(MacWorkspaceTest, TheSettingsOfAPermissionAreAPaneOfSystemSettings)
{
    EXPECT_TRUE(permissions.openSettings(Permission::accessibility));
    EXPECT_TRUE(permissions.openSettings(Permission::inputMonitoring));

    EXPECT_THAT(desktop.workspace.openedAddresses(),
                ElementsAre("x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility",
                            "x-apple.systempreferences:com.apple.preference.security?Privacy_ListenEvent"));
}

TEST_F(MacWorkspaceTest, WhatTheWindowServerDoesNotTellIsAbsent)
{
    auto& window = desktop.openWindow(desktop.launch("Editor"), "Notes", {100.0, 120.0, 500.0, 400.0});
    window.listAs({.ownerProcess = std::nullopt, .layer = 25, .bounds = std::nullopt});

    EXPECT_THAT(MacWindowList().onScreenWindows(), ElementsAre(WindowListEntry{std::nullopt, 25, std::nullopt}));
}

} // namespace
} // namespace quorvel::macos
