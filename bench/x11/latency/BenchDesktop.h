#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "latency/EventProbe.h"
#include "latency/ManyWindows.h"
#include "latency/WindowManagerSetup.h"
#include "report/Condition.h"
#include "support/ChildProcess.h"
#include "support/XServer.h"

namespace quorvel::bench {

struct DesktopPlan {
    WindowManagerSetup windowManager = openboxSetup();
    std::size_t windowCount = 3;
};

struct Shortcut {
    xcb_keysym_t key = XKB_KEY_NoSymbol;
    std::string command;
};

// A display of its own with a window manager, windows and, if wanted, a compositor. The frontmost window is the one
// that placements move.
class BenchDesktop {
public:
    // What windows are called, beside those of the plan that are more than three.
    static constexpr auto targetTitle = "Target";
    static constexpr auto otherTitle = "Other";

    BenchDesktop(const DesktopPlan& plan, Compositing compositing);

    const xtest::XServer& display() const { return server; }
    EventProbe& eventProbe() { return probe; }
    Compositing compositing() const { return compositingState; }
    xcb_window_t target() const { return targetWindow; }
    xcb_window_t other() const { return otherWindow; }

    // Starts a program that lives as long as the desktop.
    void start(std::vector<std::string> words);

    // Starts one that answers these keys with Super, and waits until it has taken them.
    void startAwaiting(const std::vector<xcb_keysym_t>& keys, std::vector<std::string> words);

    // Starts the shortcut daemon with a command for each of these keys with Super, and waits until it has taken them.
    void startShortcutDaemon(const std::vector<Shortcut>& shortcuts);

private:
    void startWindowManager(const WindowManagerSetup& setup);
    void startCompositor();
    xcb_window_t openWindow(std::vector<std::string> words);

    Compositing compositingState;
    xtest::XServer server;
    EventProbe probe{server};
    std::vector<std::unique_ptr<xtest::ChildProcess>> processes;
    std::optional<ManyWindows> manyWindows;
    xcb_window_t targetWindow = XCB_NONE;
    xcb_window_t otherWindow = XCB_NONE;
};

} // namespace quorvel::bench
