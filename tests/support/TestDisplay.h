#pragma once

#include <memory>

#include "support/Grabs.h"
#include "support/KeyInjector.h"
#include "support/Monitors.h"
#include "support/Outputs.h"
#include "support/WindowManagerProcess.h"
#include "support/XClient.h"
#include "support/XServer.h"

namespace quorvel::xtest {

// A display with what nearly every test needs: the server, a watching connection, a keyboard, monitors.
class TestDisplay {
public:
    TestDisplay() : TestDisplay(XServer::Options()) {}
    explicit TestDisplay(const XServer::Options& options) : server(options) {}

    // Starts the window manager; one at a time.
    WindowManagerProcess& startWindowManager(WindowManager manager)
    {
        managerProcess = std::make_unique<WindowManagerProcess>(server, client, manager);
        return *managerProcess;
    }

    // The one that was started.
    WindowManagerProcess& windowManager() { return *managerProcess; }

    // Replaces the monitors: outputs where the server has them, parts of the one output otherwise.
    void arrange(const std::vector<Monitor>& wanted)
    {
        if (server.kind() == XServer::Kind::dummyOutputs) {
            outputs.arrange(wanted);
        } else {
            monitors.arrange(wanted);
        }
    }

    XServer server;
    XClient client{server};
    KeyInjector keyboard{client};
    Monitors monitors{client};
    Outputs outputs{server, client};
    Grabs grabs{client};

private:
    std::unique_ptr<WindowManagerProcess> managerProcess;
};

} // namespace quorvel::xtest
