#include "platform/simulated/SimulatedWindowList.h"

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedOverlayWindows.h"
#include "platform/simulated/SimulatedScreens.h"
#include "platform/simulated/SimulatedWindowServer.h"

namespace quorvel {

SimulatedWindowList::SimulatedWindowList(Journal& journal, const SimulatedWindowServer& windowServer,
                                         const SimulatedOverlayWindows& overlayWindows, const SimulatedScreens& screens)
    : journal(journal), windowServer(windowServer), overlayWindows(overlayWindows), screens(screens)
{}

std::vector<WindowListEntry> SimulatedWindowList::onScreenWindows()
{
    journal.record("WindowList.onScreenWindows()");
    std::vector<WindowListEntry> entries;
    for (const auto& overlay : overlayWindows.visible()) {
        entries.push_back(
            {SimulatedWindowServer::ownProcess, overlay->description.level, screens.flipped(overlay->frame)});
    }
    for (const auto* window : windowServer.onScreenWindows()) {
        entries.push_back(window->listing());
    }
    return entries;
}

} // namespace quorvel
