#include "system/OnScreenWindows.h"

#include "platform/Platform.h"
#include "platform/WindowList.h"
#include "platform/Workspace.h"

namespace quorvel {

namespace {

constexpr int ordinaryLayer = 0;
constexpr double smallestExtent = 50.0; // points; tool tips and the like are smaller

bool isWorkedWith(const WindowListEntry& entry, ProcessId ownProcess)
{
    return entry.ownerProcess && *entry.ownerProcess != ownProcess && entry.layer == ordinaryLayer && entry.bounds &&
           entry.bounds->width > smallestExtent && entry.bounds->height > smallestExtent;
}

} // namespace

std::vector<WindowInfo> onScreenWindows(const Platform& platform)
{
    const auto ownProcess = platform.workspace.ownProcess();
    std::vector<WindowInfo> windows;
    for (const auto& entry : platform.windowList.onScreenWindows()) {
        if (isWorkedWith(entry, ownProcess)) {
            windows.push_back({*entry.ownerProcess, *entry.bounds});
        }
    }
    return windows;
}

} // namespace quorvel
