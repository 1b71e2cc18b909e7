#pragma once

#include <optional>

#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include "base/Keys.h"
#include "contract/macos/BundleFolder.h"
#include "macos/compat/Pool.h"
#include "macos/fakes/DisplayServer.h"
#include "macos/fakes/FakeDesktop.h"
#include "main/MacProgram.h"

namespace quorvel {

// The whole program over the fake desktop, from its construction on. One screen, one window in front.
class MacProgramFixture : public testing::Test {
protected:
    MacProgramFixture()
    {
        fakes::startDisplayServer();
        program.emplace(folder.bundle());
    }

    // Until nothing waits any more, neither in the run loop nor in the main queue.
    void settle()
    {
        for (int turn = 0; turn < 3; ++turn) {
            @autoreleasepool {
                [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode beforeDate:[NSDate distantPast]];
                desktop.drain();
            }
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
        @autoreleasepool {
            int count = 0;
            for (NSWindow* window in [NSApp windows]) {
                count += [window isVisible] ? 1 : 0;
            }
            return count;
        }
    }

    SimulatedDesktop desktop;
    fakes::FakeDesktop mac{desktop};
    fakes::Pool pool; // windows in it go before the desktop that they are on
    SimulatedApplication& editor = desktop.launch("Editor");
    SimulatedWindow& window = desktop.openWindow(editor, "Notes", {100, 100, 800, 600});
    contract::BundleFolder folder;
    std::optional<MacProgram> program;
};

} // namespace quorvel
