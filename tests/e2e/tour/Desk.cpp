#include "e2e/tour/Desk.h"

#include <array>
#include <filesystem>

#include "e2e/tour/Painting.h"
#include "support/Patience.h"

namespace quorvel::tour {
namespace {

using xtest::PixelRect;

constexpr PixelRect first{0, 0, 1600, 1000};
constexpr PixelRect second{1600, 0, 1280, 1000};
constexpr int barHeight = 32;

constexpr auto windowTheme = R"(border.width: 1
padding.width: 9
padding.height: 7
window.handle.width: 0
window.client.padding.width: 0
window.label.text.justify: center
window.*.title.bg: flat solid
window.*.label.bg: parentrelative
window.*.button.*.bg: parentrelative
window.active.border.color: #15181c
window.active.title.bg.color: #3a414b
window.active.title.separator.color: #3a414b
window.active.label.text.color: #f1f4f7
window.active.button.*.image.color: #c3cad3
window.inactive.border.color: #1d2126
window.inactive.title.bg.color: #2f353d
window.inactive.title.separator.color: #2f353d
window.inactive.label.text.color: #8d97a4
window.inactive.button.*.image.color: #6d7783
)";

constexpr auto windowManagerSettings = R"(<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <theme>
    <name>Tour</name>
    <titleLayout>LIMC</titleLayout>
    <font place="ActiveWindow"><name>Inter</name><size>10</size><weight>Bold</weight></font>
    <font place="InactiveWindow"><name>Inter</name><size>10</size></font>
  </theme>
  <desktops><number>1</number></desktops>
</openbox_config>
)";

constexpr auto terminalScript = R"(printf '\033[1;32m~/projects/atlas\033[0m $ make check\n'
printf '  compile  route.c\n  compile  tiles.c\n  compile  legend.c\n  link     atlas\n'
printf '  check    distances ......... \033[32mok\033[0m\n'
printf '  check    projections ....... \033[32mok\033[0m\n'
printf '  check    tiles ............. \033[32mok\033[0m\n'
printf '  check    legend ............ \033[32mok\033[0m\n'
printf '\033[32m128 checks passed\033[0m in 2.4 s\n\n'
printf '\033[1;32m~/projects/atlas\033[0m $ '
exec cat)";

} // namespace

Desk::Desk() : display({.width = first.width + second.width, .height = first.height})
{
    writeLook();
    display.monitors.arrange({{"left", first, xtest::MonitorRole::primary}});
    paintWallpaper();
    display.startWindowManager(xtest::WindowManager::openbox);
    compositor = std::make_unique<xtest::Compositor>(display.server, display.client);
    bar = std::make_unique<xtest::StrutPanel>(display.server, first, xtest::Side::top, barHeight);
    paintBar(display.client, bar->id(), bar->rect());
    openWindows();
}

Desk::~Desk() = default;

const PixelRect& Desk::firstMonitor() const
{
    return first;
}

const PixelRect& Desk::secondMonitor() const
{
    return second;
}

PixelRect Desk::bothMonitors() const
{
    return {first.x, first.y, first.width + second.width, first.height};
}

void Desk::switchSecondMonitorOn()
{
    display.monitors.arrange(
        {{"left", first, xtest::MonitorRole::primary}, {"right", second, xtest::MonitorRole::secondary}});
}

void Desk::openTray()
{
    tray = std::make_unique<xtest::ChildProcess>(
        xtest::Command{{"trayer",  "--edge",        "top",  "--align",       "right",   "--distance",
                        "4",       "--height",      "24",   "--widthtype",   "request", "--monitor",
                        "0",       "--margin",      "10",   "--SetDockType", "true",    "--SetPartialStrut",
                        "false",   "--transparent", "true", "--alpha",       "0",       "--tint",
                        "0x1C2129"},
                       display.server.clientEnvironment(),
                       {}});
}

void Desk::minimize(xtest::ClientProcess& program)
{
    constexpr std::uint32_t iconicState = 3;
    display.client.sendToWindowManager(program.window(), "WM_CHANGE_STATE", {iconicState});
    display.client.waitFor("a window to be minimized",
                           [&] { return display.client.hasState(program.window(), "_NET_WM_STATE_HIDDEN"); });
}

void Desk::spreadWindows()
{
    move(*letterProcess, {110, 150, 640, 560});
    move(*plannerProcess, {860, 110, 660, 430});
    move(*terminalProcess, {640, 580, 820, 380});
}

PixelRect Desk::workArea() const
{
    return {first.x, first.y + barHeight, first.width, first.height - barHeight};
}

void Desk::writeLook() const
{
    const auto& home = display.server.home();
    home.write(".themes/Tour/openbox-3/themerc", windowTheme);
    home.write(".config/openbox/rc.xml", windowManagerSettings);
}

void Desk::paintWallpaper()
{
    paintRoot(display.client, {first, second});
}

void Desk::openWindows()
{
    plannerProcess = open({QUORVEL_SAMPLE_WINDOW, "planner"}, {860, 110, 660, 430});
    terminalProcess = open({"xterm", "-title", "atlas", "-fa", "DejaVu Sans Mono", "-fs", "11", "-bg", "#20252c", "-fg",
                            "#dde1e6", "-bw", "0", "-b", "9", "-e", "sh", "-c", terminalScript},
                           {640, 480, 820, 440});
    letterProcess = open({QUORVEL_SAMPLE_WINDOW, "notes"}, {110, 150, 640, 560});
}

std::unique_ptr<xtest::ClientProcess> Desk::open(const std::vector<std::string>& words, const PixelRect& rect)
{
    auto program = std::make_unique<xtest::ClientProcess>(display.server, display.client, words);
    move(*program, rect);
    return program;
}

void Desk::move(xtest::ClientProcess& program, const PixelRect& rect)
{
    constexpr std::uint32_t northWestAndAllFour = 1U | 0xFU << 8U | 2U << 12U;
    auto& client = display.client;
    const auto frame = client.frameExtents(program.window());
    client.sendToWindowManager(program.window(), "_NET_MOVERESIZE_WINDOW",
                               {northWestAndAllFour, static_cast<std::uint32_t>(rect.x),
                                static_cast<std::uint32_t>(rect.y),
                                static_cast<std::uint32_t>(rect.width - frame.left - frame.right),
                                static_cast<std::uint32_t>(rect.height - frame.top - frame.bottom)});
    constexpr int largestStep = 24; // terminals size themselves in steps
    const auto isSize = [](int actual, int wanted) { return actual <= wanted && actual > wanted - largestStep; };
    client.waitFor("a window to take its place", [&] {
        const auto outer = client.outerRect(program.window());
        return outer && outer->x == rect.x && outer->y == rect.y && isSize(outer->width, rect.width) &&
               isSize(outer->height, rect.height);
    });
}

} // namespace quorvel::tour
