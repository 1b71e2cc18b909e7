#pragma once

#include <utility>

#include "platform/Workspace.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

class FaultyWorkspace final : public Workspace {
public:
    FaultyWorkspace(Workspace& real, PortFaults& faults) : real(real), faults(faults) {}

    ProcessId ownProcess() const override { return real.ownProcess(); }

    std::optional<RunningApplication> frontmostApplication() override
    {
        return faults.attempt(
            "Workspace.frontmostApplication", [&] { return real.frontmostApplication(); }, std::nullopt);
    }

    std::optional<RunningApplication> runningApplication(ProcessId process) override
    {
        return faults.attempt(
            "Workspace.runningApplication", [&] { return real.runningApplication(process); }, std::nullopt);
    }

    std::vector<RunningApplication> runningApplications() override
    {
        return faults.attempt(
            "Workspace.runningApplications", [&] { return real.runningApplications(); },
            std::vector<RunningApplication>());
    }

    void activate(ProcessId process) override
    {
        faults.attemptEffect("Workspace.activate", [&] { real.activate(process); });
    }

    void activateSelf() override
    {
        faults.attemptEffect("Workspace.activateSelf", [&] { real.activateSelf(); });
    }

    bool open(std::string_view address) override
    {
        return faults.attempt("Workspace.open", [&] { return real.open(address); }, false);
    }

    // Completes also where nothing came of it.
    void relaunch(std::function<void()> completion) override
    {
        if (faults.next("Workspace.relaunch", 1)) {
            completion();
        } else {
            real.relaunch(std::move(completion));
        }
    }

    void terminate() override
    {
        faults.attemptEffect("Workspace.terminate", [&] { real.terminate(); });
    }

private:
    Workspace& real;
    PortFaults& faults;
};

} // namespace quorvel
