#pragma once

#include <string>
#include <vector>

#include "support/TestDisplay.h"

namespace quorvel::e2e {

// The managed windows of a display by their titles.
class TitledWindows {
public:
    explicit TitledWindows(xtest::TestDisplay& display) : display(display) {}

    // The visible ones of that title.
    std::vector<xcb_window_t> with(const std::string& title);

    // Waits until there is one window of that title and it has the keyboard; returns it.
    xcb_window_t waitUntilActive(const std::string& title);
    void waitUntilClosed(const std::string& title);

private:
    xtest::TestDisplay& display;
};

} // namespace quorvel::e2e
