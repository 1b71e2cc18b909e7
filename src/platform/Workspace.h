#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ProcessId.h"

namespace quorvel {

enum class ActivationPolicy { regular, accessory, prohibited };

struct RunningApplication {
    ProcessId process = 0;
    std::optional<std::string> localizedName;
    ActivationPolicy activationPolicy = ActivationPolicy::regular;

    bool operator==(const RunningApplication&) const = default;
};

// The applications of this session, and this program among them.
class Workspace {
public:
    Workspace() = default;
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;
    virtual ~Workspace() = default;

    virtual ProcessId ownProcess() const = 0;

    // The application that has the keyboard focus, if any.
    virtual std::optional<RunningApplication> frontmostApplication() = 0;

    // Nothing for a process that is no application or has terminated.
    virtual std::optional<RunningApplication> runningApplication(ProcessId process) = 0;

    virtual std::vector<RunningApplication> runningApplications() = 0;

    // Brings the application's front window forward and gives it the keyboard. Ignored for a process that is gone.
    virtual void activate(ProcessId process) = 0;

    // Makes this program the active application, whatever else is.
    virtual void activateSelf() = 0;

    // Opens an address in the program that the user chose for it; false if the address is malformed.
    virtual bool open(std::string_view address) = 0;

    // Starts a second instance of this program; `completion` runs on the main queue whether or not that worked.
    virtual void relaunch(std::function<void()> completion) = 0;

    // Asks the main loop to end; the application delegate hears of it first.
    virtual void terminate() = 0;
};

} // namespace quorvel
