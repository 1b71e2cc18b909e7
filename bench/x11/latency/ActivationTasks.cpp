#include <fmt/format.h>

#include "latency/TaskParts.h"
#include "latency/Tasks.h"
#include "support/Patience.h"

namespace quorvel::bench {

namespace {

constexpr std::size_t windowCount = 25;

// The letter of the window that is second from the front, so that each run chooses the one that the last one left.
Trial letterTrial(BenchDesktop& desktop)
{
    const auto quorvel = startQuorvel(desktop, defaultSettings);
    const Chord letter{{}, XKB_KEY_b};
    return activationTrial(desktop, {letter, letter}, [quorvel, &desktop] {
        quorvel->drainOutput();
        if (!desktop.eventProbe().pressUntilPainted(switcherHotKey, switcherWindows(windowCount))) {
            throw xtest::HarnessError("the focus switcher did not come up");
        }
    });
}

// The second line for the same reason.
Trial rofiTrial(BenchDesktop& desktop)
{
    desktop.startShortcutDaemon({{XKB_KEY_F9, "rofi -show window -selected-row 1"}});
    const Chord enter{{}, XKB_KEY_Return};
    return activationTrial(desktop, {enter, enter}, [&desktop] {
        if (!desktop.eventProbe().pressUntilPainted(superF9, 1)) {
            throw xtest::HarnessError("rofi did not come up");
        }
    });
}

Trial minimalTrial(BenchDesktop& desktop)
{
    desktop.startAwaiting({XKB_KEY_F10}, {QUORVEL_MINIMAL_FOCUS, fmt::format("{:#x}", desktop.target()),
                                          fmt::format("{:#x}", desktop.other())});
    return activationTrial(desktop, {superF10, superF10});
}

Entry shellCommands(const std::string& program, const std::string& first, const std::string& second)
{
    return {program + " (sxhkd)", Role::peer, {program, "sxhkd"}, [first, second](BenchDesktop& desktop) {
                desktop.startShortcutDaemon({{XKB_KEY_F9, first}, {XKB_KEY_F10, second}});
                return activationTrial(desktop, {superF9, superF10});
            }};
}

Task task(const std::string& name, const WindowManagerSetup& windowManager)
{
    return {
        std::move(name),
        fmt::format("Key to other active window, {}, {} windows", windowManager.program, windowCount),
        {windowManager, windowCount},
        {{"Quorvel: letter", Role::quorvel, {}, letterTrial},
         {"minimal: one request on a hot key", Role::minimal, {}, minimalTrial},
         {windowManager.program + ": its own binding",
          Role::peer,
          {},
          [](BenchDesktop& desktop) { return activationTrial(desktop, {bindings::focusRight, bindings::focusLeft}); }},
         shellCommands("wmctrl", fmt::format("wmctrl -a {}", BenchDesktop::targetTitle),
                       fmt::format("wmctrl -a {}", BenchDesktop::otherTitle)),
         shellCommands("xdotool",
                       fmt::format("xdotool search --limit 1 --name '^{}$' windowactivate", BenchDesktop::targetTitle),
                       fmt::format("xdotool search --limit 1 --name '^{}$' windowactivate", BenchDesktop::otherTitle)),
         {"rofi: chosen line (sxhkd)", Role::peer, {"rofi", "sxhkd"}, rofiTrial}}};
}

} // namespace

std::vector<Task> activationTasks()
{
    return {task("focus", openboxSetup()), task("focus-i3", i3Setup())};
}

} // namespace quorvel::bench
