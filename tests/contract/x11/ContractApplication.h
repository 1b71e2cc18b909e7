#pragma once

#include <memory>
#include <string>

#include <xcb/xcb.h>

#include "support/ChildProcess.h"
#include "support/FileDescriptor.h"
#include "support/XServer.h"

namespace quorvel::contract {

// A process on the display, with windows that the test opens and closes.
class ContractApplication {
public:
    ContractApplication(const xtest::XServer& server, const std::string& name);

    pid_t process() const { return child->id(); }

    // Opens a window and returns once it is mapped as far as the program is concerned.
    xcb_window_t open(const std::string& title);
    void close(xcb_window_t window);

    // Ends the process at once.
    void end() { child->kill(); }

private:
    std::string answerTo(const std::string& command);

    xtest::FileDescriptor link;
    std::unique_ptr<xtest::ChildProcess> child;
};

} // namespace quorvel::contract
