#pragma once

#include <chrono>

#include "report/Series.h"
#include "soak/ShownWindows.h"
#include "soak/SoakDesktop.h"

namespace quorvel::soak {

// Presses the keys of a mode and waits for what they do.
class KeyDriver {
public:
    explicit KeyDriver(SoakDesktop& desktop);

    // Presses the hot key and returns the time until that many of the program's windows are on the screen.
    bench::Milliseconds show(const xtest::KeyCombination& hotKey, std::size_t windowCount);

    // Types a key and waits until that many are.
    void type(xcb_keysym_t key, std::size_t windowCount);

    // The same where all of them come anew.
    void typeAndReplace(xcb_keysym_t key, std::size_t windowCount);

    // Waits until the mode is over.
    void waitUntilIdle();

private:
    SoakDesktop& desktop;
    ShownWindows windows;
};

} // namespace quorvel::soak
