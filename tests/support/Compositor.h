#pragma once

#include <memory>

#include "support/ChildProcess.h"
#include "support/XClient.h"
#include "support/XServer.h"

namespace quorvel::xtest {

// A compositing manager (picom, drawing with the Render extension), in charge when the constructor returns.
class Compositor {
public:
    Compositor(const XServer& server, XClient& client);
    Compositor(const Compositor&) = delete;
    ~Compositor();

    Compositor& operator=(const Compositor&) = delete;

    static bool isInstalled();

    // Ends it and waits until windows with alpha are opaque again.
    void stop();

private:
    XClient& client;
    std::unique_ptr<ChildProcess> process;
};

} // namespace quorvel::xtest
