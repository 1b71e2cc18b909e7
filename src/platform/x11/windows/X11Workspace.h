#pragma once

#include <functional>
#include <string>
#include <vector>

#include <xcb/xcb.h>

#include "base/WeakGuard.h"
#include "platform/Workspace.h"
#include "platform/x11/windows/DesktopEntries.h"

namespace quorvel {
class MainQueue;
}

namespace quorvel::x11 {

class Activation;
class ClientWindows;
struct WindowIdentity;

// Applications are the processes that have windows.
class X11Workspace : public Workspace {
public:
    // How this program starts itself anew and how it ends.
    struct Lifecycle {
        std::vector<std::string> relaunchCommand; // program and arguments
        std::function<void()> terminate;
    };

    X11Workspace(MainQueue& mainQueue, ClientWindows& windows, Activation& activation, DesktopEntries& entries,
                 Lifecycle lifecycle);

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
    std::vector<RunningApplication> describeAll(const std::vector<xcb_window_t>& clients);
    RunningApplication describe(const WindowIdentity& identity);
    std::string nameOf(const WindowIdentity& identity);

    MainQueue& mainQueue;
    ClientWindows& windows;
    Activation& activation;
    DesktopEntries& entries;
    Lifecycle lifecycle;
    WeakGuard weakGuard;
};

} // namespace quorvel::x11
