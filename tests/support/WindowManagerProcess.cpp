#include "support/WindowManagerProcess.h"

#include <algorithm>

#include "support/Patience.h"
#include "support/TestWindow.h"

namespace quorvel::xtest {
namespace {

constexpr auto i3Configuration = R"(# i3 config file (v4)
font pango:monospace 8
for_window [class=".*"] floating enable
for_window [class="Tiled"] floating disable
)";

constexpr auto kwinConfiguration = R"([Compositing]
Enabled=false
[org.kde.kdecoration2]
library=org.kde.breeze
theme=Breeze
)";

struct Description {
    std::string name;
    std::string program;
    std::vector<std::string> words;
};

Description describe(WindowManager manager)
{
    switch (manager) {
    case WindowManager::openbox:
        return {"openbox", "openbox", {"openbox", "--sm-disable"}};
    case WindowManager::metacity:
        return {"metacity", "metacity", {"metacity", "--sm-disable", "--no-composite"}};
    case WindowManager::xfwm4: // keeps its settings in a service on the session bus
        return {"xfwm4", "xfwm4", {"dbus-run-session", "--", "xfwm4", "--compositor=off"}};
    case WindowManager::icewm:
        return {"icewm", "icewm", {"icewm"}};
    case WindowManager::fluxbox:
        return {"fluxbox", "fluxbox", {"fluxbox"}};
    case WindowManager::i3:
        return {"i3", "i3", {"i3"}};
    case WindowManager::kwin: // its shortcuts live in a service on the session bus
        return {"kwin", "kwin_x11", {"dbus-run-session", "--", "kwin_x11"}};
    }
    throw HarnessError("unknown window manager");
}

void writeConfiguration(WindowManager manager, const TemporaryDirectory& home)
{
    switch (manager) {
    case WindowManager::icewm:
        // Otherwise it takes the Super key for itself, and no other client ever sees a combination with it.
        home.write(".icewm/preferences", "Win95Keys=0\nShowTaskBar=0\n");
        break;
    case WindowManager::fluxbox:
        home.write(".fluxbox/keys", "OnTitlebar Mouse1 :StartMoving\n");
        // The wallpaper of its style may be missing, and a window would complain of that.
        home.write(".fluxbox/overlay", "background: none\n");
        home.write(".fluxbox/init", "session.screen0.rootCommand: true\nsession.screen0.toolbar.visible: "
                                    "false\nsession.styleOverlay: ~/.fluxbox/overlay\n");
        break;
    case WindowManager::i3:
        home.write(".config/i3/config", i3Configuration);
        break;
    case WindowManager::kwin:
        home.write(".config/kwinrc", kwinConfiguration);
        break;
    case WindowManager::openbox:
    case WindowManager::metacity:
    case WindowManager::xfwm4:
        break;
    }
}

} // namespace

const std::vector<WindowManager>& allWindowManagers()
{
    static const std::vector<WindowManager> all = {
        WindowManager::openbox, WindowManager::metacity, WindowManager::xfwm4, WindowManager::icewm,
        WindowManager::fluxbox, WindowManager::i3,       WindowManager::kwin};
    return all;
}

std::string nameOf(WindowManager manager)
{
    return describe(manager).name;
}

WindowManagerProcess::WindowManagerProcess(const XServer& server, XClient& client, WindowManager manager)
    : server(server), client(client), manager(manager)
{
    start();
}

WindowManagerProcess::~WindowManagerProcess() = default;

bool WindowManagerProcess::isInstalled(WindowManager manager)
{
    const auto description = describe(manager);
    return findProgram(description.program).has_value() && findProgram(description.words.front()).has_value();
}

void WindowManagerProcess::replaceWith(WindowManager manager)
{
    stop();
    this->manager = manager;
    start();
}

void WindowManagerProcess::stop()
{
    if (!process) {
        return;
    }
    process->kill();
    process.reset();
    client.waitFor(nameOf(manager) + " to be gone", [this] { return !client.exists(checkWindow); });
}

void WindowManagerProcess::start()
{
    writeConfiguration(manager, server.home());
    const auto description = describe(manager);
    process = std::make_unique<ChildProcess>(Command{description.words, server.clientEnvironment(), {}});
    client.waitFor(description.name + " to be ready", [this] {
        const auto announced = client.property(client.root(), "_NET_SUPPORTING_WM_CHECK");
        if (announced.empty() || client.property(announced.front(), "_NET_SUPPORTING_WM_CHECK") != announced) {
            return false;
        }
        checkWindow = announced.front();
        return client.hasProperty(client.root(), "_NET_SUPPORTED");
    });
    waitUntilItManages();
}

// Announced is not ready: a window mapped now may wait in the manager's queue until its next event comes. A probe
// window that has been taken in shows the end of the start; the property changes meanwhile are those next events.
void WindowManagerProcess::waitUntilItManages()
{
    TestWindow probe(server, {.title = "Probe", .rect = {0, 0, 60, 40}});
    xcb_map_window(probe.client().connection(), probe.id());
    probe.client().sync();
    client.waitFor(nameOf(manager) + " to manage windows", [&] {
        client.setProperty(client.root(), "_QUORVEL_TEST_NUDGE", XCB_ATOM_CARDINAL, {0});
        return client.isViewable(probe.id()) && std::ranges::count(client.managedWindows(), probe.id()) > 0;
    });
    const xcb_window_t gone = probe.id();
    probe.vanish();
    client.waitFor(nameOf(manager) + " to forget the probe",
                   [&] { return std::ranges::count(client.managedWindows(), gone) == 0; });
}

} // namespace quorvel::xtest
