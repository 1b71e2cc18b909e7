#pragma once

#include <optional>

#include "base/Subscription.h"
#include "base/WeakGuard.h"
#include "platform/ProcessId.h"

namespace quorvel {
class MainQueue;
class Workspace;
} // namespace quorvel

namespace quorvel::macos {

// A program whose last window has closed stays in front, with the keyboard and nothing to show for it: "the frontmost
// window" is then nobody's. So whoever was in front before comes there again.
class FocusReturn {
public:
    FocusReturn(Workspace& workspace, MainQueue& mainQueue);
    FocusReturn(const FocusReturn&) = delete;
    FocusReturn& operator=(const FocusReturn&) = delete;

private:
    void remember(ProcessId process);
    void giveBack() const;

    Workspace& workspace;
    std::optional<ProcessId> previous; // the last one in front other than this program
    Subscription activations;
    Subscription closings;
    Subscription keyChanges;
    WeakGuard weakly;
};

} // namespace quorvel::macos
