#include "latency/BenchDesktop.h"

#include "support/Patience.h"

namespace quorvel::bench {

using xtest::ChildProcess;
using xtest::Command;
using xtest::HarnessError;

namespace {

// Two bindings that place the active window, as a person would write them.
constexpr auto openboxConfiguration = R"(<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <keyboard>
    <keybind key="W-F1"><action name="MoveResizeTo">
      <x>0</x><y>0</y><width>960</width><height>1080</height>
    </action></keybind>
    <keybind key="W-F2"><action name="MoveResizeTo">
      <x>960</x><y>0</y><width>960</width><height>1080</height>
    </action></keybind>
  </keyboard>
</openbox_config>
)";

} // namespace

BenchDesktop::BenchDesktop(Compositing compositing)
{
    startWindowManager();
    if (compositing == Compositing::on) {
        startCompositor();
    }
    openWindows();
}

std::unique_ptr<ChildProcess> BenchDesktop::start(std::vector<std::string> words) const
{
    auto environment = server.clientEnvironment();
    environment["SHELL"] = "/bin/sh"; // what the shortcut daemon runs commands with
    return std::make_unique<ChildProcess>(Command{std::move(words), std::move(environment), {}});
}

std::unique_ptr<ChildProcess> BenchDesktop::startShortcutDaemon(const std::string& configuration)
{
    const auto file = server.home().write(".config/sxhkd/sxhkdrc", configuration);
    auto daemon = start({"sxhkd", "-c", file.string()});
    // It says nothing when it is ready, but grabs keys right after it has read its configuration.
    probe.rest();
    probe.rest();
    return daemon;
}

void BenchDesktop::startWindowManager()
{
    const auto file = server.home().write(".config/openbox/rc.xml", openboxConfiguration);
    processes.push_back(start({"openbox", "--sm-disable", "--config-file", file.string()}));
    if (!probe.waitFor([this] { return probe.hasSelectionOwner("WM_S0"); })) {
        throw HarnessError("the window manager did not start");
    }
}

void BenchDesktop::startCompositor()
{
    const auto file = server.home().write(".config/picom.conf", "backend = \"xrender\";\n");
    processes.push_back(start({"picom", "--config", file.string()}));
    if (!probe.waitFor([this] { return probe.hasSelectionOwner("_NET_WM_CM_S0"); })) {
        throw HarnessError("the compositor did not start");
    }
}

void BenchDesktop::openWindows()
{
    const std::vector<std::vector<std::string>> programs = {
        {"xterm", "-e", "cat"}, {"xterm", "-e", "cat"}, {QUORVEL_PLAIN_CLIENT, "Target"}};
    for (const auto& words : programs) {
        const auto before = probe.activeWindow();
        processes.push_back(start(words));
        if (!probe.waitFor([&] {
                const auto active = probe.activeWindow();
                return active != XCB_NONE && active != before;
            })) {
            throw HarnessError(words.front() + " did not start");
        }
    }
    targetWindow = probe.activeWindow();
    probe.rest();
}

} // namespace quorvel::bench
