#pragma once

#include <csignal>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "e2e/DefaultLayouts.h"
#include "support/ProgramUnderTest.h"
#include "support/TestDisplay.h"

namespace quorvel::e2e {

// The program at work on a test's display, seen from outside: its windows on the screen, its lines, its keys.
class RunningQuorvel {
public:
    // Starts the program and waits until its hot keys are there. The configuration folder outlives it.
    RunningQuorvel(xtest::TestDisplay& display, const std::filesystem::path& executable,
                   const xtest::TemporaryDirectory& configuration,
                   const xtest::ProgramUnderTest::Options& options = {});

    xtest::ProgramUnderTest& program() { return running; }

    // The process that the server takes for the program, where that is not the program itself.
    void appearAs(pid_t process) { apparentProcess = process; }

    // The combination that shows and hides the overlay: Command-Shift-O.
    static const xtest::KeyCombination& hotKey();
    void pressHotKey();

    // The combination that shows and hides the focus switcher: Command-Shift-F.
    static const xtest::KeyCombination& switcherHotKey();
    void pressSwitcherHotKey();

    // The program's windows that are on the screen: frames, labels, the legend and lists.
    std::vector<xtest::PixelRect> overlayRects();

    // Waits until exactly these frames (and perhaps the legend) are on the screen.
    void waitForFrames(const UnitFrames& frames, const xtest::PixelRect& area);
    void waitForNoOverlay();

    // Waits until exactly that many of the program's windows are on the screen.
    void waitForOverlayWindows(std::size_t count);

    // Waits until the window's outer rectangle is the frame's. Windows that grow in steps may stay below it by less
    // than a step. Returns the rectangle.
    xtest::PixelRect waitUntilPlaced(xcb_window_t window, const xtest::PixelRect& expected);

    // Waits until nothing of the overlay is left and another program could take the keyboard.
    void waitUntilIdle();

    // Waits until the closing of the preferences has brought the hot keys back for the last time: it is announced twice
    // to each opening so far, and all hot keys come back each time.
    void waitUntilHotKeysResume(int openings);

    // Ends the program by the signal; afterwards the display must be as if it had never run. Returns the exit status.
    int end(int signal = SIGTERM);

    // What end() checks after the program has ended by other means.
    void expectNothingLeft();

private:
    bool showsExactly(const UnitFrames& frames, const xtest::PixelRect& area);

    xtest::TestDisplay& display;
    xtest::ProgramUnderTest running;
    pid_t apparentProcess;
};

} // namespace quorvel::e2e
