// The whole program on the macOS adapters, from a person's keys to what the system was told.

#import <AppKit/AppKit.h>
#include <gmock/gmock.h>

#include "macos/fakes/StatusItems.h"
#include "macos/preferences/Person.h"
#include "macos/program/MacProgramFixture.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
namespace person = macos::person;

constexpr std::uint64_t commandShift = eventFlags::command | eventFlags::shift;
constexpr std::uint64_t commandOption = eventFlags::command | eventFlags::option;
constexpr KeyCode digit3 = 20;
constexpr KeyCode keyB = 11;
constexpr KeyCode keyF = 3;
constexpr KeyCode keyO = 31;
constexpr KeyCode keyR = 15;

class JourneyTest : public MacProgramFixture {
protected:
    void launchBehindTheEditor()
    {
        launch();
        desktop.activate(editor); // the alerts of a start without permissions have taken the focus
    }

    void choose(std::string_view title)
    {
        EXPECT_TRUE(fakes::chooseFromStatusMenu(title));
        settle();
    }

    static NSWindow* preferences() { return person::window("Preferences"); }

    // As the system announces it.
    static void comesToTheFront(ProcessId process)
    {
        NSWorkspace* const workspace = [NSWorkspace sharedWorkspace];
        const auto onSystem = fakes::FakeDesktop::onSystem(process);
        NSRunningApplication* const application =
            [NSRunningApplication runningApplicationWithProcessIdentifier:onSystem];
        [[workspace notificationCenter] postNotificationName:NSWorkspaceDidActivateApplicationNotification
                                                      object:workspace
                                                    userInfo:@{NSWorkspaceApplicationKey : application}];
    }

    static void comesToTheFront(const SimulatedApplication& application) { comesToTheFront(application.process()); }

    static void store(NSString* key, BOOL value)
    {
        [[NSUserDefaults standardUserDefaults] setObject:[NSNumber numberWithBool:value] forKey:key];
    }

    std::vector<std::string> writes() const { return desktop.journal.entries({"Accessibility.setAttribute(window"}); }
    auto shown() const { return desktop.overlayWindows.visible(); }
};

TEST_F(JourneyTest, AHotKeyAndALetterPutTheWindowIntoTheFrame)
{
    launchBehindTheEditor();
    type(keyO, commandShift);
    type(digit3);
    ASSERT_THAT(shown(), SizeIs(3));
    EXPECT_EQ(shown().front()->description.level, windowLevels::popUpMenu + 2); // the legend
    EXPECT_EQ(shown().back()->frame, (ScreenRect{1, 1, 718, 873}));
    EXPECT_EQ(shown().back()->frameAutosaveName, "A");
    EXPECT_EQ(shown().back()->description.collectionBehavior, 321U);

    type(keyB);

    EXPECT_THAT(writes(), ElementsAre("Accessibility.setAttribute(window 1, AXPosition, (720.0, 25.0))",
                                      "Accessibility.setAttribute(window 1, AXSize, (720.0, 875.0))",
                                      "Accessibility.setAttribute(window 1, AXPosition, (720.0, 25.0))",
                                      "Accessibility.setAttribute(window 1, AXSize, (720.0, 875.0))"));
    EXPECT_EQ(window.frame(), (AxRect{720, 25, 720, 875}));
    EXPECT_THAT(shown(), IsEmpty());
    EXPECT_THAT(editor.receivedKeys(), IsEmpty());
}

TEST_F(JourneyTest, WithoutATapThePanelTakesTheLetterAndGivesTheFocusBack)
{
    desktop.permissions.deny(Permission::inputMonitoring);
    launchBehindTheEditor();
    type(keyO, commandShift);
    ASSERT_TRUE(desktop.overlayWindows.keyPanel());
    EXPECT_EQ(desktop.overlayWindows.keyPanel()->description.level, windowLevels::floating);

    type(keyCodes::a);

    EXPECT_EQ(window.frame(), (AxRect{0, 25, 1440, 875}));
    EXPECT_THAT(shown(), IsEmpty());
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), editor.process());
}

TEST_F(JourneyTest, EscapeTakesTheOverlayAwayAndLeavesTheWindow)
{
    launchBehindTheEditor();
    type(keyO, commandShift);
    ASSERT_FALSE(shown().empty());

    type(keyCodes::escape);

    EXPECT_THAT(shown(), IsEmpty());
    EXPECT_THAT(writes(), IsEmpty());
    type(keyB);
    EXPECT_THAT(editor.receivedKeys(), SizeIs(1));
}

TEST_F(JourneyTest, TheSwitcherRaisesTheChosenWindowAndActivatesItsApplication)
{
    desktop.openWindow(editor, "Front", {0, 0, 400, 300});
    store(@"fsFocusExactWindow", YES);
    launchBehindTheEditor();
    type(keyF, commandShift);
    ASSERT_FALSE(shown().empty());
    desktop.journal.clear();

    type(keyB);

    EXPECT_THAT(desktop.journal.entries({"Accessibility.performAction", "Workspace.activate("}),
                ElementsAre("Accessibility.performAction(window 1, AXRaise)", "Workspace.activate(500)"));
    EXPECT_EQ(desktop.windowServer.onScreenWindows().front(), &window);
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(JourneyTest, TheMoveResizeModeMovesAndResizesUnderItsFrame)
{
    store(@"mrSnapEnabled", NO);
    launchBehindTheEditor();
    type(keyR, commandOption);
    ASSERT_THAT(shown(), SizeIs(1));
    EXPECT_EQ(shown().front()->description.level, windowLevels::status);
    EXPECT_EQ(shown().front()->description.collectionBehavior, 257U);

    type(keyCodes::rightArrow);
    EXPECT_EQ(window.frame(), (AxRect{120, 100, 800, 600}));
    EXPECT_EQ(shown().front()->frame, (ScreenRect{120, 200, 800, 600}));

    type(keyCodes::rightArrow, eventFlags::shift);
    EXPECT_GT(window.frame().width, 800.0);

    type(keyCodes::escape);
    EXPECT_THAT(shown(), IsEmpty());
}

TEST_F(JourneyTest, TheOnboardingGoesThroughBothPermissionsAndTheRestartToTheEnd)
{
    desktop.permissions.deny(Permission::accessibility);
    desktop.permissions.deny(Permission::inputMonitoring);
    desktop.alerts.choose("Open System Settings");
    desktop.alerts.choose("Open System Settings");
    desktop.alerts.choose("Restart Now");
    launchBehindTheEditor();
    ASSERT_THAT(desktop.alerts.shown(), SizeIs(1));
    EXPECT_EQ(desktop.alerts.shown()[0].messageText, "Step 1 of 2 — Accessibility");
    EXPECT_EQ(desktop.alerts.shown()[0].iconName, "ColorLogoTransparent");

    desktop.permissions.grant(Permission::accessibility);
    desktop.advance(1.0);
    settle();
    ASSERT_THAT(desktop.alerts.shown(), SizeIs(2));
    EXPECT_EQ(desktop.alerts.shown()[1].messageText, "Step 2 of 2 — Input Monitoring");

    desktop.permissions.grant(Permission::inputMonitoring);
    desktop.advance(1.0);
    settle();
    ASSERT_THAT(desktop.alerts.shown(), SizeIs(3));
    EXPECT_EQ(desktop.alerts.shown()[2].messageText, "Restart Quorvel");
    EXPECT_EQ(desktop.workspace.relaunches(), 1U);
    EXPECT_EQ(desktop.workspace.terminationRequests(), 1U);

    program->applicationWillTerminate();
    program.emplace(folder.bundle());
    launchBehindTheEditor();
    EXPECT_THAT(desktop.alerts.shown(), SizeIs(3)) << "the new instance has nothing to ask";
    type(keyO, commandShift);
    type(keyCodes::a);
    EXPECT_EQ(window.frame(), (AxRect{0, 25, 1440, 875}));
    EXPECT_THAT(editor.receivedKeys(), IsEmpty()) << "its tap took the letter";
    EXPECT_FALSE(desktop.overlayWindows.keyPanel());
}

TEST_F(JourneyTest, ThePreferencesAreOpenedAControlIsChangedAndTheyAreClosed)
{
    launchBehindTheEditor();
    choose("Preferences...");
    ASSERT_NE(preferences(), nil);
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), SimulatedWindowServer::ownProcess);
    EXPECT_THAT(desktop.hotKeys.registered(), IsEmpty());

    [static_cast<NSTabView*>([preferences() contentView]) selectTabViewItemAtIndex:2]; // Layout Appearance
    settle();
    auto* const width = person::find<NSSlider>(preferences(), "Overlay, Border width");
    ASSERT_NE(width, nil);
    [width setDoubleValue:7.5];
    person::use(width);
    settle();
    EXPECT_EQ([[[NSUserDefaults standardUserDefaults] objectForKey:@"overlayBorderWidth"] doubleValue], 7.5);

    [preferences() performClose:nil];
    settle();
    EXPECT_EQ(preferences(), nil);
    EXPECT_THAT(desktop.hotKeys.registered(), SizeIs(3));
    type(keyO, commandShift);
    EXPECT_THAT(shown(), SizeIs(2)) << "the window in front is the user's again";
}

TEST_F(JourneyTest, ClosingAboutLeavesThePreferencesInFront)
{
    launchBehindTheEditor();
    choose("Preferences...");
    choose("About Quorvel...");
    [person::window("About Quorvel") performClose:nil];
    settle();
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), SimulatedWindowServer::ownProcess);

    [preferences() performClose:nil];
    settle();
    EXPECT_EQ(desktop.windowServer.frontmostProcess(), editor.process());
}

TEST_F(JourneyTest, TheFocusGoesToWhomTheUserWorkedWithLast)
{
    launchBehindTheEditor();
    choose("Preferences...");
    comesToTheFront(desktop.launch("Mail"));
    [NSApp activateIgnoringOtherApps:YES]; // a click on the preferences
    comesToTheFront(SimulatedWindowServer::ownProcess);
    [preferences() performClose:nil];
    settle();

    EXPECT_EQ(desktop.workspace.frontmostApplication()->localizedName, "Mail");
}

TEST_F(JourneyTest, AnAlertThatIsPutOffGivesTheFocusBack)
{
    desktop.permissions.deny(Permission::accessibility);
    desktop.alerts.choose("Later");
    launch();
    ASSERT_THAT(desktop.alerts.shown(), SizeIs(1));
    desktop.advance(2.0);

    EXPECT_EQ(desktop.windowServer.frontmostProcess(), editor.process());
}

TEST_F(JourneyTest, TheMenuHasSixEntriesThatDoWhatTheySay)
{
    launchBehindTheEditor();
    EXPECT_EQ([[fakes::openStatusMenu() itemArray] count], 6U);
    EXPECT_TRUE([[[fakes::statusItem() button] image] isTemplate]);

    choose("Check for Updates...");
    choose("User Guide");
    choose("Quit");

    EXPECT_THAT(desktop.journal.entries({"UpdaterController.checkForUpdates"}), SizeIs(1));
    EXPECT_THAT(desktop.journal.entries({"Workspace.open("}), SizeIs(1));
    EXPECT_THAT(desktop.journal.entries({"Workspace.terminate("}), SizeIs(1));
}

} // namespace
} // namespace quorvel
