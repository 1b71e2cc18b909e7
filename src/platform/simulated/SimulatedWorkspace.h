#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/Workspace.h"

namespace quorvel {

class Journal;
class SimulatedMainQueue;
class SimulatedWindowServer;

class SimulatedWorkspace final : public Workspace {
public:
    SimulatedWorkspace(Journal& journal, SimulatedMainQueue& mainQueue, SimulatedWindowServer& windowServer);

    ProcessId ownProcess() const override;
    std::optional<RunningApplication> frontmostApplication() override;
    std::optional<RunningApplication> runningApplication(ProcessId process) override;
    std::vector<RunningApplication> runningApplications() override;
    void activate(ProcessId process) override;
    void activateSelf() override;
    bool open(std::string_view address) override;
    void relaunch(std::function<void()> completion) override;
    void terminate() override;

    const std::vector<std::string>& openedAddresses() const { return opened; }
    std::size_t terminationRequests() const { return terminations; }

    // From now on other applications stay where they are, as a system may decide for a program that is not in front.
    void refuseActivations() { activationsRefused = true; }

    // Second instances that came up.
    std::size_t relaunches() const { return secondInstances; }
    void failRelaunches() { relaunchesFail = true; }

private:
    std::optional<RunningApplication> find(ProcessId process) const;

    Journal& journal;
    SimulatedMainQueue& mainQueue;
    SimulatedWindowServer& windowServer;
    std::vector<std::string> opened;
    std::size_t terminations = 0;
    std::size_t secondInstances = 0;
    bool relaunchesFail = false;
    bool activationsRefused = false;
};

} // namespace quorvel
