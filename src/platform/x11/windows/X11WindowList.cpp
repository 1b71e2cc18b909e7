#include "platform/x11/windows/X11WindowList.h"

#include "platform/x11/screens/X11Screens.h"
#include "platform/x11/windows/ClientWindows.h"
#include "platform/x11/windows/Placements.h"

namespace quorvel::x11 {

namespace {

// In the numbering of window levels that the portable program knows.
int layerOf(WindowKind kind)
{
    switch (kind) {
    case WindowKind::normal:
    case WindowKind::dialog:
    case WindowKind::desktop: // never listed
        return 0;
    case WindowKind::utility:
        return 3;
    case WindowKind::dock:
        return 20;
    case WindowKind::other:
        break;
    }
    return 8;
}

} // namespace

std::vector<WindowListEntry> X11WindowList::onScreenWindows()
{
    std::vector<WindowListEntry> entries;
    for (const auto window : windows.frontToBack()) {
        const auto* const snapshot = windows.find(window);
        if (snapshot == nullptr || snapshot->identity.kind == WindowKind::desktop ||
            windows.presenceOf(*snapshot) != WindowPresence::onScreen) {
            continue;
        }
        entries.push_back({snapshot->identity.process, layerOf(snapshot->identity.kind),
                           screens.coordinates().axRect(placements.outer(window, *snapshot))});
    }
    return entries;
}

} // namespace quorvel::x11
