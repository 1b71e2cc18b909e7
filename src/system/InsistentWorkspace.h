#pragma once

#include "base/WeakGuard.h"
#include "platform/Workspace.h"

namespace quorvel {

class Accessibility;
class MainQueue;

// A platform's workspace whose activations arrive. A system may refuse a program that is not in front itself to bring
// another one there; the application is then asked through accessibility, which is allowed to.
class InsistentWorkspace final : public Workspace {
public:
    // What it goes by; all of it outlives this object.
    struct Services {
        Workspace& workspace;
        Accessibility& accessibility;
        MainQueue& mainQueue;
    };

    explicit InsistentWorkspace(const Services& services) : services(services) {}

    ProcessId ownProcess() const override { return services.workspace.ownProcess(); }
    std::optional<RunningApplication> frontmostApplication() override;
    std::optional<RunningApplication> runningApplication(ProcessId process) override;
    std::vector<RunningApplication> runningApplications() override;
    void activate(ProcessId process) override;
    void activateSelf() override;
    bool open(std::string_view address) override { return services.workspace.open(address); }
    void relaunch(std::function<void()> completion) override { services.workspace.relaunch(std::move(completion)); }
    void terminate() override { services.workspace.terminate(); }

private:
    std::optional<ProcessId> frontmostProcess() const;
    void insist(ProcessId process, std::optional<ProcessId> before);

    Services services;
    std::uint64_t requests = 0; // of any application, to know whether one is still the last
    WeakGuard weakly;
};

} // namespace quorvel
