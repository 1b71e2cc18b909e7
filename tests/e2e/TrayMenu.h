#pragma once

#include "e2e/RunningQuorvel.h"
#include "support/SystemTray.h"
#include "support/TestDisplay.h"

namespace quorvel::e2e {

// The menu of the program's icon in a tray, opened by the mouse and used by the keyboard.
class TrayMenu {
public:
    // Entries counted from the top; with a feed of versions to look at, all of them can be chosen.
    enum class Entry { about, checkForUpdates, preferences };

    // Starts the tray on that monitor.
    TrayMenu(xtest::TestDisplay& display, const xtest::PixelRect& monitor)
        : display(display), tray(display.server, display.client, monitor)
    {}

    void waitForIcon(RunningQuorvel& quorvel);
    void choose(Entry entry, RunningQuorvel& quorvel);

private:
    xtest::PixelRect iconOf(RunningQuorvel& quorvel);

    xtest::TestDisplay& display;
    xtest::SystemTray tray;
};

} // namespace quorvel::e2e
