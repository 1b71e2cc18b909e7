#include "main/MacProgram.h"

#include <optional>
#include <string>
#include <vector>

#import <AppKit/AppKit.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Keys.h"
#include "contract/macos/BundleFolder.h"
#include "macos/fakes/FakeDesktop.h"

namespace quorvel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr KeyCode o = 31;
constexpr std::uint64_t commandShift = eventFlags::command | eventFlags::shift;

// The whole program over the fake desktop, from its construction on. One screen, one window in front.
class MacProgramTest : public testing::Test {
protected:
    MacProgramTest()
    {
        [NSApplication sharedApplication];
        program.emplace(folder.bundle());
    }

    // Until nothing waits any more, neither in the run loop nor in the main queue.
    void settle()
    {
        for (int turn = 0; turn < 3; ++turn) {
            @autoreleasepool {
                [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode beforeDate:[NSDate distantPast]];
            }
            desktop.drain();
        }
    }

    void launch()
    {
        program->applicationDidFinishLaunching();
        settle();
        desktop.journal.clear();
    }

    void type(KeyCode keyCode, std::uint64_t flags = 0)
    {
        desktop.press(keyCode, flags);
        settle();
    }

    static int shownWindows()
    {
        int count = 0;
        for (NSWindow* window in [NSApp windows]) {
            count += [window isVisible] ? 1 : 0;
        }
        return count;
    }

    SimulatedDesktop desktop;
    fakes::FakeDesktop mac{desktop};
    SimulatedApplication& editor = desktop.launch("Editor");
    SimulatedWindow& window = desktop.openWindow(editor, "Notes", {100, 100, 800, 600});
    contract::BundleFolder folder;
    std::optional<MacProgram> program;
};

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
