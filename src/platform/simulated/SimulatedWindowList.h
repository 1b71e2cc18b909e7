#pragma once

#include "platform/WindowList.h"

namespace quorvel {

class Journal;
class SimulatedOverlayWindows;
class SimulatedScreens;
class SimulatedWindowServer;

// Lists the windows of all applications, and in front of them this program's own.
class SimulatedWindowList final : public WindowList {
public:
    SimulatedWindowList(Journal& journal, const SimulatedWindowServer& windowServer,
                        const SimulatedOverlayWindows& overlayWindows, const SimulatedScreens& screens);

    std::vector<WindowListEntry> onScreenWindows() override;

private:
    Journal& journal;
    const SimulatedWindowServer& windowServer;
    const SimulatedOverlayWindows& overlayWindows;
    const SimulatedScreens& screens;
};

} // namespace quorvel
