#pragma once

#include <map>

#include <ApplicationServices/ApplicationServices.h>

#include "base/WeakGuard.h"
#include "platform/Accessibility.h"
#include "platform/ProcessId.h"
#include "platform/macos/CfRef.h"

namespace quorvel {
class MainQueue;
}

namespace quorvel::macos {

// Some applications, told by a screen reader that their interface should be an enhanced one, move their windows in an
// animation, and where a size follows at once, to a wrong place. So that is switched off while windows are moved.
class EnhancedInterfaces {
public:
    explicit EnhancedInterfaces(MainQueue& mainQueue) : mainQueue(mainQueue) {}
    EnhancedInterfaces(const EnhancedInterfaces&) = delete;
    EnhancedInterfaces& operator=(const EnhancedInterfaces&) = delete;
    ~EnhancedInterfaces() { restore(); }

    // Switches it off, if it is on, in the application of that window, until the next turn of the main queue. An error
    // if the application does not answer, which then is not waited for again in this turn.
    std::expected<void, AxError> pauseFor(AXUIElementRef window);

private:
    // What an application said in this turn.
    struct Answer {
        std::expected<void, AxError> result;
        CfRef<AXUIElementRef> paused; // null where there was nothing to switch off
    };

    static Answer ask(ProcessId process);
    void restore();

    MainQueue& mainQueue;
    std::map<ProcessId, Answer> asked;
    WeakGuard weakly;
};

} // namespace quorvel::macos
