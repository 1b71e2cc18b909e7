#include <fmt/format.h>

#include "latency/TaskParts.h"
#include "latency/Tasks.h"
#include "support/Patience.h"

namespace quorvel::bench {

namespace {

// Two halves as the only layout.
constexpr std::string_view halvesSettings = R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
  <key>didSeedDefaultLayouts</key><true/>
  <key>selectedLayoutIDs</key><array><string>two_side_by_side</string></array>
</dict></plist>
)";

// Without snapping, so that every press goes a whole step.
constexpr std::string_view wholeStepsSettings = R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
  <key>mrSnapEnabled</key><false/>
</dict></plist>
)";

const Chord overlayHotKey{{XKB_KEY_Super_L, XKB_KEY_Shift_L}, XKB_KEY_o};
const Chord moveHotKey{{XKB_KEY_Super_L, XKB_KEY_Alt_L}, XKB_KEY_r};
constexpr int step = 20;

std::string text(const xtest::PixelRect& rect)
{
    return fmt::format("{},{},{},{}", rect.x, rect.y, rect.width, rect.height);
}

Trial letterTrial(BenchDesktop& desktop)
{
    const auto quorvel = startQuorvel(desktop, halvesSettings);
    return placementTrial(desktop, {Chord{{}, XKB_KEY_a}, Chord{{}, XKB_KEY_b}}, [quorvel, &desktop] {
        quorvel->drainOutput();
        if (!desktop.eventProbe().pressUntilPainted(overlayHotKey, 2)) {
            throw xtest::HarnessError("the overlay did not come up");
        }
    });
}

Trial arrowTrial(BenchDesktop& desktop)
{
    const auto quorvel = startQuorvel(desktop, wholeStepsSettings);
    if (!desktop.eventProbe().pressUntilPainted(moveHotKey, 1)) {
        throw xtest::HarnessError("the move/resize mode did not come up");
    }
    return placementTrial(desktop, {Chord{{}, XKB_KEY_Right}, Chord{{}, XKB_KEY_Left}},
                          [quorvel] { quorvel->drainOutput(); });
}

Trial minimalTrial(BenchDesktop& desktop, const std::string& first, const std::string& second)
{
    desktop.startAwaiting({XKB_KEY_F10},
                          {QUORVEL_MINIMAL_PLACE, fmt::format("{:#x}", desktop.target()), first, second});
    return placementTrial(desktop, {superF10, superF10});
}

Trial minimalStepTrial(BenchDesktop& desktop)
{
    auto& probe = desktop.eventProbe();
    const auto start = probe.frameOf(probe.topLevelOf(desktop.target()));
    auto aside = start;
    aside.x += step;
    return minimalTrial(desktop, text(start), text(aside));
}

Entry minimalEntry(std::function<Trial(BenchDesktop&)> prepare)
{
    return {"minimal: one request on a hot key", Role::minimal, {}, std::move(prepare)};
}

Entry ownBinding(const WindowManagerSetup& windowManager, const Chord& first, const Chord& second)
{
    return {windowManager.program + ": its own binding", Role::peer, {}, [first, second](BenchDesktop& desktop) {
                return placementTrial(desktop, {first, second});
            }};
}

Entry shellCommands(const std::string& program, const std::string& first, const std::string& second)
{
    return {program + " (sxhkd)", Role::peer, {program, "sxhkd"}, [first, second](BenchDesktop& desktop) {
                desktop.startShortcutDaemon({{XKB_KEY_F9, first}, {XKB_KEY_F10, second}});
                return placementTrial(desktop, {superF9, superF10});
            }};
}

Task letterTask(std::string name, const WindowManagerSetup& windowManager)
{
    return {
        std::move(name),
        fmt::format("Key to window in place, {}", windowManager.program),
        {windowManager},
        {{"Quorvel: letter", Role::quorvel, {}, letterTrial},
         minimalEntry([](BenchDesktop& desktop) { return minimalTrial(desktop, "0,0,960,1080", "960,0,960,1080"); }),
         ownBinding(windowManager, bindings::leftHalf, bindings::rightHalf),
         shellCommands("wmctrl", "wmctrl -r :ACTIVE: -e 1,0,0,958,1055", "wmctrl -r :ACTIVE: -e 1,960,0,958,1055"),
         shellCommands("xdotool", "xdotool getactivewindow windowsize 958 1055 windowmove 0 0",
                       "xdotool getactivewindow windowsize 958 1055 windowmove 960 0")}};
}

Task arrowTask()
{
    const auto& windowManager = openboxSetup();
    return {"move",
            fmt::format("Key to window moved by a step, {}", windowManager.program),
            {windowManager},
            {{"Quorvel: arrow key", Role::quorvel, {}, arrowTrial},
             minimalEntry(minimalStepTrial),
             ownBinding(windowManager, bindings::stepRight, bindings::stepLeft),
             shellCommands("wmctrl", "wmctrl -r :ACTIVE: -e 0,20,20,-1,-1", "wmctrl -r :ACTIVE: -e 0,40,20,-1,-1"),
             shellCommands("xdotool", "xdotool getactivewindow windowmove 20 20",
                           "xdotool getactivewindow windowmove 40 20")}};
}

} // namespace

std::vector<Task> placementTasks()
{
    auto onOpenbox = letterTask("placement", openboxSetup());
    onOpenbox.budgets = {{"letter to window in place, openbox, at most 1.5 times one request", 1.5, 0, 1, {}}};
    return {std::move(onOpenbox), letterTask("placement-i3", i3Setup()), arrowTask()};
}

} // namespace quorvel::bench
