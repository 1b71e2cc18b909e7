#pragma once

#include <memory>
#include <string>
#include <vector>

#include "support/ChildProcess.h"
#include "support/XClient.h"
#include "support/XServer.h"

namespace quorvel::xtest {

// A real program with one window. A window manager must be running.
class ClientProcess {
public:
    enum class Kind {
        xterm,    // sizes in steps of a character cell
        mousepad, // GTK 3
        qt,       // a small Qt 6 window of this library; its window gravity is static
        plain,    // a bare window of this library in a process of its own; the quickest
    };

    // Starts the program and waits until its window is visible and in the window manager's list. The title is honoured
    // by all but Mousepad.
    ClientProcess(const XServer& server, XClient& client, Kind kind, const std::string& title = "Sample");

    // The same for any program with its arguments.
    ClientProcess(const XServer& server, XClient& client, const std::vector<std::string>& words);
    ClientProcess(const ClientProcess&) = delete;
    ~ClientProcess();

    ClientProcess& operator=(const ClientProcess&) = delete;

    static bool isInstalled(Kind kind);
    static const std::vector<Kind>& allKinds();
    static std::string nameOf(Kind kind);

    xcb_window_t window() const { return windowId; }
    pid_t process() const { return child->id(); }

    // Ends the program at once and waits until its window is gone.
    void kill();

private:
    XClient& client;
    std::unique_ptr<ChildProcess> child;
    xcb_window_t windowId = XCB_NONE;
};

} // namespace quorvel::xtest
