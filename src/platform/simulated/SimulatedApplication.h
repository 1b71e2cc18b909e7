#pragma once

#include <string>
#include <utility>
#include <vector>

#include "base/Keys.h"
#include "platform/Workspace.h"
#include "platform/simulated/SimulatedElement.h"

namespace quorvel {

// A process with windows. It outlives its termination, as a record of what it was.
class SimulatedApplication final : public SimulatedElement {
public:
    explicit SimulatedApplication(RunningApplication description) : description(std::move(description)) {}

    std::string reference() const override { return "application " + std::to_string(description.process); }
    ProcessId process() const override { return description.process; }

    bool isRunning() const { return running; }

    // Key-downs that reached it.
    const std::vector<KeyEvent>& receivedKeys() const { return keys; }

    // Lets accessibility calls run into their time limit, until it wakes up.
    void hang() { hanging = true; }
    void wakeUp() { hanging = false; }
    bool isHanging() const { return hanging; }

    // Keeps the process, whose windows stay on screen, out of the workspace's lists.
    void hideFromWorkspace() { inWorkspace = false; }
    bool isInWorkspace() const { return running && inWorkspace; }

    const RunningApplication description;

private:
    friend class SimulatedWindowServer;

    std::vector<KeyEvent> keys;
    bool running = true;
    bool hanging = false;
    bool inWorkspace = true;
};

} // namespace quorvel
