#pragma once

#include <csignal>
#include <memory>
#include <string>
#include <vector>

#include "support/ChildProcess.h"
#include "support/XClient.h"
#include "support/XServer.h"

namespace quorvel::xtest {

enum class WindowManager { openbox, metacity, xfwm4, icewm, fluxbox, i3, kwin };

// Each window manager in the order above, for parameterised tests.
const std::vector<WindowManager>& allWindowManagers();
std::string nameOf(WindowManager manager);

// A window manager with a configuration of its own, ready when the constructor returns.
class WindowManagerProcess {
public:
    WindowManagerProcess(const XServer& server, XClient& client, WindowManager manager);
    WindowManagerProcess(const WindowManagerProcess&) = delete;
    ~WindowManagerProcess();

    WindowManagerProcess& operator=(const WindowManagerProcess&) = delete;

    static bool isInstalled(WindowManager manager);

    // Ends the running one, waits until it is gone, starts another and waits until it is ready.
    void replaceWith(WindowManager manager);
    void restart() { replaceWith(manager); }

    // Ends the running one and waits until it is gone.
    void stop();

    // A busy one: it sees nothing until it goes on.
    void hold() const { process->sendSignalToGroup(SIGSTOP); }
    void goOn() const { process->sendSignalToGroup(SIGCONT); }

private:
    void start();
    void waitUntilItManages();

    const XServer& server;
    XClient& client;
    WindowManager manager;
    xcb_window_t checkWindow = XCB_NONE;
    std::unique_ptr<ChildProcess> process;
};

} // namespace quorvel::xtest
