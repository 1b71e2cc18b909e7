#include "macos/fakes/FakeDesktop.h"

#include <utility>

#include <unistd.h>

#include "base/FatalError.h"

namespace quorvel::fakes {

namespace {

FakeDesktop* only = nullptr;
std::vector<std::string> complaints;
long references = 0;

} // namespace

FakeDesktop::FakeDesktop(SimulatedDesktop& desktop) : desktop(desktop)
{
    if (only != nullptr) {
        fatalError("There is a desktop already");
    }
    only = this;
    desktop.eventTaps.visibility = SimulatedEventTaps::Visibility::everyKey;
}

FakeDesktop::~FakeDesktop()
{
    if (runLoopSources > 0) {
        complain("A source is still in the run loop");
    }
    if (!desktop.hotKeys.registered().empty()) {
        complain("A hot key is still registered");
    }
    if (desktop.hotKeys.hasHandler()) {
        complain("The handler of hot keys is still installed");
    }
    if (!desktop.eventTaps.taps().empty()) {
        complain("An event tap is still there");
    }
    if (desktop.eventMonitors.keyMonitorCount() + desktop.eventMonitors.mouseMonitorCount() > 0) {
        complain("An event monitor is still there");
    }
    only = nullptr;
}

FakeDesktop& FakeDesktop::current()
{
    if (only == nullptr) {
        fatalError("The system was called without a desktop");
    }
    return *only;
}

ProcessId FakeDesktop::onDesktop(int systemProcess)
{
    return systemProcess == getpid() ? SimulatedWindowServer::ownProcess : systemProcess;
}

int FakeDesktop::onSystem(ProcessId process)
{
    return process == SimulatedWindowServer::ownProcess ? getpid() : process;
}

void complain(std::string mistake)
{
    complaints.push_back(std::move(mistake));
}

std::vector<std::string> takeComplaints()
{
    return std::exchange(complaints, {});
}

long ownedReferences()
{
    return references;
}

void ownReferences(long change)
{
    references += change;
}

} // namespace quorvel::fakes
