#pragma once

#include <optional>
#include <vector>

#include "base/Geometry.h"
#include "platform/ProcessId.h"

namespace quorvel {

// One window as the window server knows it; what it cannot tell is absent.
struct WindowListEntry {
    std::optional<ProcessId> ownerProcess;
    std::optional<int> layer; // 0 for ordinary windows
    std::optional<AxRect> bounds;

    bool operator==(const WindowListEntry&) const = default;
};

class WindowList {
public:
    WindowList() = default;
    WindowList(const WindowList&) = delete;
    WindowList& operator=(const WindowList&) = delete;
    virtual ~WindowList() = default;

    // The windows that are on screen, front to back, without the desktop's own.
    virtual std::vector<WindowListEntry> onScreenWindows() = 0;
};

} // namespace quorvel
