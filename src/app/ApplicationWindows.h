#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/Geometry.h"
#include "platform/Accessibility.h"
#include "platform/ProcessId.h"

namespace quorvel {

struct Platform;

// The windows of applications as accessibility knows them at one moment. What cannot be read is left out without a
// word. Each application is asked for its windows once, so that one that does not answer costs its time limit once.
class ApplicationWindows {
public:
    struct Match {
        AxElementRef window;  // null for none
        bool hasTwin = false; // another window there was the answer before
    };

    explicit ApplicationWindows(const Platform& platform) : platform(platform) {}

    // The first window of the process that lies where `bounds` says, within 2 points. Windows that lie on one another
    // are told apart by turns: each is the answer once before the first is the answer again.
    Match takeWindowAt(ProcessId process, const AxRect& bounds);

    std::vector<AxElementRef> minimizedWindows(ProcessId process);

    // Empty if there is none.
    std::string title(const AxElementRef& window) const;

private:
    struct Window {
        AxElementRef element;
        std::optional<AxRect> rect;
        bool isTaken = false;
    };

    struct Application {
        std::vector<AxElementRef> elements;
        std::optional<std::vector<Window>> located;
    };

    Application& application(ProcessId process);
    std::vector<Window>& locatedWindows(ProcessId process);

    const Platform& platform;
    std::map<ProcessId, Application> applications;
};

} // namespace quorvel
