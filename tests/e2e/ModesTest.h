#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "e2e/ProgramTest.h"

namespace quorvel::e2e {

// What a person can be in the middle of.
enum class Mode { overlay, switcher, moveResize };

inline constexpr Mode allModes[] = {Mode::overlay, Mode::switcher, Mode::moveResize};

std::string nameOf(Mode mode);

// What the person of these tests does in each mode, so that one disturbance can be tried in all of them.
class ModesTest : public ProgramTest {
protected:
    ModesTest() = default;
    explicit ModesTest(const xtest::XServer::Options& server) : ProgramTest(server) {}

    // Whatever happened, the settings are as the first start had them.
    void TearDown() override;

    // Presses the mode's hot key and waits until its windows are on the screen. The window is the frontmost one.
    void enter(Mode mode, xcb_window_t window);

    // Leaves by Escape.
    void leave();

    // The whole work of a mode with the frontmost window: it is placed, chosen or moved.
    void work(Mode mode, xcb_window_t window);

    // As above with a window of its own: what was disturbed works the next time.
    void workAnew(Mode mode);

    // What the program has printed since the last call.
    std::vector<std::string> newLines();

    // How often the program has printed the line.
    std::ptrdiff_t linesOf(const std::string& line);

    xtest::PixelRect rectOf(xcb_window_t window);
    bool isShown(const xtest::PixelRect& rect);

private:
    std::size_t told = 0; // lines
};

} // namespace quorvel::e2e
