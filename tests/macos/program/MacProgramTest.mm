#include <gmock/gmock.h>

#include "macos/program/MacProgramFixture.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr KeyCode b = 11;
constexpr KeyCode o = 31;
constexpr std::uint64_t commandShift = eventFlags::command | eventFlags::shift;

class MacProgramTest : public MacProgramFixture {};

TEST_F(MacProgramTest, HotKeysWorkFromTheConstructionOn)
{
    EXPECT_THAT(desktop.hotKeys.registered(), SizeIs(3));
}

TEST_F(MacProgramTest, AHotKeyAndALetterPutTheWindowIntoItsFrame)
{
    launch();
    const int windowsBefore = shownWindows();
    type(o, commandShift);
    EXPECT_EQ(shownWindows(), windowsBefore + 2); // a frame and the legend
    desktop.journal.clear();

    type(keyCodes::a);

    EXPECT_THAT(desktop.journal.entries({"Accessibility.setAttribute(window"}),
                ElementsAre("Accessibility.setAttribute(window 1, AXPosition, (0.0, 25.0))",
                            "Accessibility.setAttribute(window 1, AXSize, (1440.0, 875.0))",
                            "Accessibility.setAttribute(window 1, AXPosition, (0.0, 25.0))",
                            "Accessibility.setAttribute(window 1, AXSize, (1440.0, 875.0))"));
    EXPECT_EQ(window.frame(), (AxRect{0, 25, 1440, 875}));
    EXPECT_EQ(shownWindows(), windowsBefore);
    EXPECT_THAT(editor.receivedKeys(), IsEmpty());
}

TEST_F(MacProgramTest, HotKeysAreRegisteredAgainAfterWakingUp)
{
    launch();
    NSWorkspace* const workspace = [NSWorkspace sharedWorkspace];
    [[workspace notificationCenter] postNotificationName:NSWorkspaceDidWakeNotification object:workspace];
    settle();

    EXPECT_EQ(desktop.journal.entries({"HotKeys.registerHotKey"}).size(), 3U);
    EXPECT_THAT(desktop.hotKeys.registered(), SizeIs(3));
}

TEST_F(MacProgramTest, OfWhatOthersStoreOnlyShortcutsRegisterTheHotKeysAnew)
{
    launch();
    type(o, commandShift); // the overlay's colours have been read
    type(keyCodes::escape);
    desktop.journal.clear();

    [[NSUserDefaults standardUserDefaults] setObject:@"#FF0000FF" forKey:@"textColor"];
    settle();
    EXPECT_THAT(desktop.journal.entries({"HotKeys.registerHotKey"}), IsEmpty());

    [[NSUserDefaults standardUserDefaults] setObject:[NSNumber numberWithInt:b] forKey:@"activateOverlayKeyCode"];
    settle();
    EXPECT_EQ(desktop.journal.entries({"HotKeys.registerHotKey"}).size(), 3U);
}

TEST_F(MacProgramTest, NothingIsLeftBehind)
{
    launch();
    type(o, commandShift);
    program->applicationWillTerminate();
    program.reset();
    settle();

    EXPECT_THAT(desktop.hotKeys.registered(), IsEmpty());
    EXPECT_EQ(mac.runLoopSources, 0U);
}

} // namespace
} // namespace quorvel
