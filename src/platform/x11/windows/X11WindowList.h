#pragma once

#include "platform/WindowList.h"

namespace quorvel::x11 {

class ClientWindows;
class Placements;
class X11Screens;

// The windows of the window manager's list, in the order of their frames.
class X11WindowList : public WindowList {
public:
    X11WindowList(ClientWindows& windows, const Placements& placements, X11Screens& screens)
        : windows(windows), placements(placements), screens(screens)
    {}

    std::vector<WindowListEntry> onScreenWindows() override;

private:
    ClientWindows& windows;
    const Placements& placements;
    X11Screens& screens;
};

} // namespace quorvel::x11
