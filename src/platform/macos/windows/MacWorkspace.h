#pragma once

#include "platform/Workspace.h"

namespace quorvel {
class MainQueue;
}

namespace quorvel::macos {

class MacWorkspace final : public Workspace {
public:
    explicit MacWorkspace(MainQueue& mainQueue) : mainQueue(mainQueue) {}

    ProcessId ownProcess() const override;
    std::optional<RunningApplication> frontmostApplication() override;
    std::optional<RunningApplication> runningApplication(ProcessId process) override;
    std::vector<RunningApplication> runningApplications() override;
    void activate(ProcessId process) override;
    void activateSelf() override;
    bool open(std::string_view address) override;
    void relaunch(std::function<void()> completion) override;
    void terminate() override;

private:
    MainQueue& mainQueue;
};

} // namespace quorvel::macos
