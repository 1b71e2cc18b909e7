#include "platform/x11/windows/X11Workspace.h"

#include <algorithm>
#include <fstream>
#include <set>
#include <utility>

#include <fmt/format.h>
#include <gio/gio.h>
#include <unistd.h>

#include "platform/MainQueue.h"
#include "platform/x11/GlibHandles.h"
#include "platform/x11/windows/Activation.h"
#include "platform/x11/windows/ClientWindows.h"

namespace quorvel::x11 {

namespace {

constexpr auto ownName = "Quorvel";

std::string processName(ProcessId process)
{
    std::ifstream file(fmt::format("/proc/{}/comm", process));
    std::string name;
    std::getline(file, name);
    return name;
}

bool isPartOfTheDesktop(WindowKind kind)
{
    return kind == WindowKind::dock || kind == WindowKind::desktop;
}

void reportLaunch(GObject* /*source*/, GAsyncResult* result, gpointer /*data*/)
{
    GError* problem = nullptr;
    g_app_info_launch_default_for_uri_finish(result, &problem);
    if (const GlibError error{problem}) {
        fmt::print(stderr, "Cannot open the address: {}\n", error->message);
    }
}

} // namespace

X11Workspace::X11Workspace(MainQueue& mainQueue, ClientWindows& windows, Activation& activation,
                           DesktopEntries& entries, Lifecycle lifecycle)
    : mainQueue(mainQueue), windows(windows), activation(activation), entries(entries), lifecycle(std::move(lifecycle))
{
    // Reading the names takes a while that nobody shall wait for later.
    mainQueue.async(weakGuard.guard([this] { this->entries.load(); }));
}

ProcessId X11Workspace::ownProcess() const
{
    return static_cast<ProcessId>(getpid());
}

std::optional<RunningApplication> X11Workspace::frontmostApplication()
{
    const auto active = windows.activeWindow();
    const auto* const snapshot = active != XCB_NONE ? windows.find(active) : nullptr;
    return snapshot != nullptr ? std::optional(describe(snapshot->identity)) : std::nullopt;
}

std::optional<RunningApplication> X11Workspace::runningApplication(ProcessId process)
{
    const auto applications = describeAll(windows.windowsOf(process));
    const auto found = std::ranges::find(applications, process, &RunningApplication::process);
    return found != applications.end() ? std::optional(*found) : std::nullopt;
}

std::vector<RunningApplication> X11Workspace::runningApplications()
{
    return describeAll(windows.frontToBack());
}

void X11Workspace::activate(ProcessId process)
{
    activation.activate(process);
}

void X11Workspace::activateSelf()
{
    activation.activate(ownProcess());
}

bool X11Workspace::open(std::string_view address)
{
    const std::string uri(address);
    if (g_uri_is_valid(uri.c_str(), G_URI_FLAGS_NONE, nullptr) == FALSE) {
        return false;
    }
    g_app_info_launch_default_for_uri_async(uri.c_str(), nullptr, nullptr, reportLaunch, nullptr);
    return true;
}

void X11Workspace::relaunch(std::function<void()> completion)
{
    std::vector<char*> arguments;
    arguments.reserve(lifecycle.relaunchCommand.size() + 1);
    for (auto& argument : lifecycle.relaunchCommand) {
        arguments.push_back(argument.data());
    }
    arguments.push_back(nullptr);
    GError* problem = nullptr;
    g_spawn_async(nullptr, arguments.data(), nullptr, G_SPAWN_DEFAULT, nullptr, nullptr, nullptr, &problem);
    if (const GlibError error{problem}) {
        fmt::print(stderr, "Cannot start the program anew: {}\n", error->message);
    }
    mainQueue.async(std::move(completion));
}

void X11Workspace::terminate()
{
    lifecycle.terminate();
}

// This program, and the processes of these windows.
std::vector<RunningApplication> X11Workspace::describeAll(const std::vector<xcb_window_t>& clients)
{
    std::vector<WindowIdentity> identities{{ownProcess(), WindowKind::normal, {}, {}}};
    for (const auto window : clients) {
        if (const auto* const snapshot = windows.find(window)) {
            identities.push_back(snapshot->identity);
        }
    }
    // A process with windows of both kinds is described by one that is not part of the desktop.
    std::ranges::stable_partition(identities, [](const auto& each) { return !isPartOfTheDesktop(each.kind); });
    std::vector<RunningApplication> applications;
    std::set<ProcessId> known;
    for (const auto& identity : identities) {
        if (known.insert(identity.process).second) {
            applications.push_back(describe(identity));
        }
    }
    return applications;
}

RunningApplication X11Workspace::describe(const WindowIdentity& identity)
{
    if (identity.process == ownProcess()) {
        return {identity.process, ownName, ActivationPolicy::accessory};
    }
    const auto policy = isPartOfTheDesktop(identity.kind) ? ActivationPolicy::accessory : ActivationPolicy::regular;
    auto name = nameOf(identity);
    return {identity.process, name.empty() ? std::nullopt : std::optional(std::move(name)), policy};
}

std::string X11Workspace::nameOf(const WindowIdentity& identity)
{
    if (auto name = entries.nameOf(identity.instance, identity.className)) {
        return *std::move(name);
    }
    return identity.className.empty() ? processName(identity.process) : identity.className;
}

} // namespace quorvel::x11
