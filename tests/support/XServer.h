#pragma once

#include <map>
#include <memory>
#include <string>

#include "support/ChildProcess.h"
#include "support/TemporaryDirectory.h"

namespace quorvel::xtest {

// An X server of the test's own on a fresh display; killed on destruction. Everything else in this library takes an
// XServer, never a display name, so no test can reach a display that it did not start.
class XServer {
public:
    enum class Kind {
        virtualOutput, // Xvfb: one output, starts in a moment
        dummyOutputs,  // Xorg with the dummy driver: outputs DUMMY0 to DUMMY15 that can be plugged in and out; needs
                       // root
    };

    struct Options {
        Kind kind = Kind::virtualOutput;
        int width = 1920;
        int height = 1080;
    };

    XServer() : XServer(Options()) {}
    explicit XServer(const Options& options);
    XServer(const XServer&) = delete;
    ~XServer();

    XServer& operator=(const XServer&) = delete;

    static bool isAvailable(Kind kind);

    // Such as ":87".
    const std::string& display() const { return displayName; }
    Kind kind() const { return options.kind; }
    int width() const { return options.width; }
    int height() const { return options.height; }

    // The environment of a client of this server: a home directory of its own, no session bus, no other display.
    std::map<std::string, std::string> clientEnvironment() const;
    const TemporaryDirectory& home() const { return homeDirectory; }

    // Makes the server go away under its clients.
    void kill();

private:
    Options options;
    TemporaryDirectory homeDirectory;
    std::string displayName;
    std::unique_ptr<ChildProcess> process;
};

} // namespace quorvel::xtest
