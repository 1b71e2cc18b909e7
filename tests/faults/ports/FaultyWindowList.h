#pragma once

#include "platform/WindowList.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

class FaultyWindowList final : public WindowList {
public:
    FaultyWindowList(WindowList& real, PortFaults& faults) : real(real), faults(faults) {}

    // Fails by an empty list, and by a window of which nothing is known.
    std::vector<WindowListEntry> onScreenWindows() override
    {
        return faults.attempt(
            "WindowList.onScreenWindows", [&] { return real.onScreenWindows(); }, std::vector<WindowListEntry>(),
            std::vector<WindowListEntry>(1));
    }

private:
    WindowList& real;
    PortFaults& faults;
};

} // namespace quorvel
