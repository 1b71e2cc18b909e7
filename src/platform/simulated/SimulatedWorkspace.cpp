#include "platform/simulated/SimulatedWorkspace.h"

#include <cctype>
#include <utility>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedMainQueue.h"
#include "platform/simulated/SimulatedWindowServer.h"

namespace quorvel {

namespace {

// A scheme, a colon, and something without blanks.
bool isAddress(std::string_view text)
{
    const auto colon = text.find(':');
    const bool hasParts = colon != std::string_view::npos && colon > 0 && colon + 1 < text.size();
    return hasParts && std::isalpha(static_cast<unsigned char>(text.front())) != 0 &&
           text.find_first_of(" \t\r\n") == std::string_view::npos;
}

RunningApplication ownApplication()
{
    return {SimulatedWindowServer::ownProcess, "Quorvel", ActivationPolicy::accessory};
}

} // namespace

SimulatedWorkspace::SimulatedWorkspace(Journal& journal, SimulatedMainQueue& mainQueue,
                                       SimulatedWindowServer& windowServer)
    : journal(journal), mainQueue(mainQueue), windowServer(windowServer)
{}

ProcessId SimulatedWorkspace::ownProcess() const
{
    return SimulatedWindowServer::ownProcess;
}

std::optional<RunningApplication> SimulatedWorkspace::frontmostApplication()
{
    journal.record("Workspace.frontmostApplication()");
    return windowServer.frontmostProcess().and_then([this](ProcessId process) { return find(process); });
}

std::optional<RunningApplication> SimulatedWorkspace::runningApplication(ProcessId process)
{
    journal.record("Workspace.runningApplication({})", process);
    return find(process);
}

std::vector<RunningApplication> SimulatedWorkspace::runningApplications()
{
    journal.record("Workspace.runningApplications()");
    std::vector<RunningApplication> result{ownApplication()};
    for (const auto* each : windowServer.runningApplications()) {
        if (each->isInWorkspace()) {
            result.push_back(each->description);
        }
    }
    return result;
}

void SimulatedWorkspace::activate(ProcessId process)
{
    journal.record("Workspace.activate({})", process);
    if (!activationsRefused) {
        windowServer.activate(process);
    }
}

void SimulatedWorkspace::activateSelf()
{
    journal.record("Workspace.activateSelf()");
    windowServer.activate(SimulatedWindowServer::ownProcess);
}

bool SimulatedWorkspace::open(std::string_view address)
{
    journal.record("Workspace.open({})", address);
    if (!isAddress(address)) {
        return false;
    }
    opened.emplace_back(address);
    return true;
}

void SimulatedWorkspace::relaunch(std::function<void()> completion)
{
    journal.record("Workspace.relaunch()");
    secondInstances += relaunchesFail ? 0 : 1;
    mainQueue.async(std::move(completion));
}

void SimulatedWorkspace::terminate()
{
    journal.record("Workspace.terminate()");
    ++terminations;
}

std::optional<RunningApplication> SimulatedWorkspace::find(ProcessId process) const
{
    if (process == SimulatedWindowServer::ownProcess) {
        return ownApplication();
    }
    const auto* application = windowServer.application(process);
    return application != nullptr && application->isInWorkspace() ? std::optional(application->description)
                                                                  : std::nullopt;
}

} // namespace quorvel
