#include "latency/BenchDesktop.h"

#include <algorithm>
#include <array>
#include <utility>

#include <fmt/format.h>
#include <xkbcommon/xkbcommon.h>

#include "support/Patience.h"

namespace quorvel::bench {

using xtest::ChildProcess;
using xtest::Command;
using xtest::HarnessError;

namespace {

std::string nameOf(xcb_keysym_t key)
{
    std::array<char, 32> name{};
    xkb_keysym_get_name(key, name.data(), name.size());
    return name.data();
}

} // namespace

BenchDesktop::BenchDesktop(const DesktopPlan& plan, Compositing compositing) : compositingState(compositing)
{
    startWindowManager(plan.windowManager);
    if (compositing == Compositing::on) {
        startCompositor();
    }
    openWindow({"xterm", "-e", "cat"});
    otherWindow = openWindow({"xterm", "-T", otherTitle, "-e", "cat"});
    targetWindow = openWindow({QUORVEL_PLAIN_CLIENT, targetTitle});
    constexpr std::size_t opened = 3;
    if (plan.windowCount > opened) {
        manyWindows.emplace(server, probe, plan.windowCount - opened);
    }
    probe.rest();
}

void BenchDesktop::start(std::vector<std::string> words)
{
    auto environment = server.clientEnvironment();
    environment["SHELL"] = "/bin/sh"; // what the shortcut daemon runs commands with
    processes.push_back(std::make_unique<ChildProcess>(Command{std::move(words), std::move(environment), {}}));
}

void BenchDesktop::startAwaiting(const std::vector<xcb_keysym_t>& keys, std::vector<std::string> words)
{
    const auto program = words.front();
    start(std::move(words));
    if (!probe.waitFor(
            [&] { return std::ranges::all_of(keys, [this](xcb_keysym_t key) { return probe.isHotKey(key); }); })) {
        throw HarnessError(program + " did not take its keys");
    }
}

void BenchDesktop::startShortcutDaemon(const std::vector<Shortcut>& shortcuts)
{
    std::string configuration;
    std::vector<xcb_keysym_t> keys;
    for (const auto& [key, command] : shortcuts) {
        configuration += fmt::format("super + {}\n  {}\n\n", nameOf(key), command);
        keys.push_back(key);
    }
    const auto file = server.home().write(".config/sxhkd/sxhkdrc", configuration);
    startAwaiting(keys, {"sxhkd", "-c", file.string()});
}

void BenchDesktop::startWindowManager(const WindowManagerSetup& setup)
{
    std::vector<std::string> words = {setup.program};
    words.insert(words.end(), setup.options.begin(), setup.options.end());
    words.push_back(server.home().write("window-manager.conf", setup.configuration).string());
    start(std::move(words));
    if (!probe.waitFor([this] { return probe.hasSelectionOwner("WM_S0"); })) {
        throw HarnessError("the window manager did not start");
    }
}

void BenchDesktop::startCompositor()
{
    const auto file = server.home().write(".config/picom.conf", "backend = \"xrender\";\n");
    start({"picom", "--config", file.string()});
    if (!probe.waitFor([this] { return probe.hasSelectionOwner("_NET_WM_CM_S0"); })) {
        throw HarnessError("the compositor did not start");
    }
}

xcb_window_t BenchDesktop::openWindow(std::vector<std::string> words)
{
    const auto before = probe.activeWindow();
    const auto program = words.front();
    start(std::move(words));
    if (!probe.waitFor([&] {
            const auto active = probe.activeWindow();
            return active != XCB_NONE && active != before;
        })) {
        throw HarnessError(program + " did not start");
    }
    return probe.activeWindow();
}

} // namespace quorvel::bench
