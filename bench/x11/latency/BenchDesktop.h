#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "latency/EventProbe.h"
#include "support/ChildProcess.h"
#include "support/TemporaryDirectory.h"
#include "support/XServer.h"

namespace quorvel::bench {

enum class Compositing { off, on };

// A display of its own with openbox, a few windows and, if wanted, a compositor; the frontmost window is the one that
// placements move.
class BenchDesktop {
public:
    explicit BenchDesktop(Compositing compositing);

    xtest::XServer& display() { return server; }
    EventProbe& eventProbe() { return probe; }
    xcb_window_t target() const { return targetWindow; }

    // Starts a program that lives until the returned object goes.
    std::unique_ptr<xtest::ChildProcess> start(std::vector<std::string> words) const;

    // Starts the shortcut daemon with that configuration and waits until it has grabbed its keys.
    std::unique_ptr<xtest::ChildProcess> startShortcutDaemon(const std::string& configuration);

private:
    void startWindowManager();
    void startCompositor();
    void openWindows();

    xtest::XServer server;
    EventProbe probe{server};
    std::vector<std::unique_ptr<xtest::ChildProcess>> processes;
    xcb_window_t targetWindow = XCB_NONE;
};

} // namespace quorvel::bench
