#include "system/InsistentWorkspace.h"

#include <chrono>

#include "platform/Accessibility.h"
#include "platform/MainQueue.h"

namespace quorvel {

namespace {

// An activation that is granted takes less; a person who waits for the window hardly notices more.
constexpr std::chrono::duration<double> patience{0.15};

} // namespace

std::optional<RunningApplication> InsistentWorkspace::frontmostApplication()
{
    return services.workspace.frontmostApplication();
}

std::optional<RunningApplication> InsistentWorkspace::runningApplication(ProcessId process)
{
    return services.workspace.runningApplication(process);
}

std::vector<RunningApplication> InsistentWorkspace::runningApplications()
{
    return services.workspace.runningApplications();
}

void InsistentWorkspace::activate(ProcessId process)
{
    const auto before = frontmostProcess();
    const auto request = ++requests;
    services.workspace.activate(process);
    if (before != process) {
        services.mainQueue.after(patience, weakly.guard([this, process, before, request] {
            if (request == requests) {
                insist(process, before);
            }
        }));
    }
}

void InsistentWorkspace::activateSelf()
{
    ++requests;
    services.workspace.activateSelf();
}

std::optional<ProcessId> InsistentWorkspace::frontmostProcess() const
{
    return services.workspace.frontmostApplication().transform([](const auto& each) { return each.process; });
}

// Where a third application has come to the front meanwhile, the user wants that one.
void InsistentWorkspace::insist(ProcessId process, std::optional<ProcessId> before)
{
    if (frontmostProcess() == before && services.workspace.runningApplication(process)) {
        static_cast<void>(services.accessibility.setAttribute(services.accessibility.applicationElement(process),
                                                              axNames::frontmost, true));
    }
}

} // namespace quorvel
