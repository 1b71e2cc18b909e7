#include <fmt/format.h>

#include "latency/TaskParts.h"
#include "latency/Tasks.h"

namespace quorvel::bench {

namespace {

// Six tiles as the only layout, so that its frames are what the hot key shows.
constexpr auto sixTilesSettings = R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
  <key>didSeedDefaultLayouts</key><true/>
  <key>selectedLayoutIDs</key><array><string>six_tiled</string></array>
  <key>layoutShortcuts</key><dict><key>six_tiled</key><string>1</string></dict>
</dict></plist>
)";

const Chord overlayHotKey{{XKB_KEY_Super_L, XKB_KEY_Shift_L}, XKB_KEY_o};

Entry quorvelShows(std::string name, std::string_view settings, const Chord& hotKey, std::size_t windowCount)
{
    return {std::move(name), Role::quorvel, {}, [settings, hotKey, windowCount](BenchDesktop& desktop) {
                const auto quorvel = startQuorvel(desktop, settings);
                return overlayTrial(desktop, hotKey, windowCount, [quorvel] { quorvel->drainOutput(); });
            }};
}

Entry rofiShows()
{
    return {"rofi -show window (sxhkd)", Role::peer, {"rofi", "sxhkd"}, [](BenchDesktop& desktop) {
                desktop.startShortcutDaemon({{XKB_KEY_F9, "rofi -show window"}});
                return overlayTrial(desktop, superF9, 1);
            }};
}

Entry minimalShows()
{
    return {"minimal: six prepared windows", Role::minimal, {}, [](BenchDesktop& desktop) {
                const bool blends = desktop.compositing() == Compositing::on;
                desktop.startAwaiting({XKB_KEY_F9}, {QUORVEL_MINIMAL_OVERLAY, blends ? "alpha" : "opaque"});
                return overlayTrial(desktop, superF9, 6);
            }};
}

Task framesTask()
{
    constexpr std::size_t framesAndLegend = 7;
    return {"overlay",
            "Hot key to painted frames",
            {},
            {quorvelShows("Quorvel: six frames and legend", sixTilesSettings, overlayHotKey, framesAndLegend),
             minimalShows(), rofiShows()},
            {{"six frames, no compositor, at most 8 ms", 8.0, 0, {}, {}},
             {"six frames, no compositor, at most a third of rofi's time", 1.0 / 3.0, 0, 2, {}},
             {"six frames, picom, at most 1.5 times six prepared windows", 1.5, 0, 1, {Load::idle, Compositing::on}}}};
}

Task lettersTask(std::size_t windowCount, std::vector<BudgetRule> budgets)
{
    return {fmt::format("letters-{}", windowCount),
            fmt::format("Hot key to letters or list, {} windows", windowCount),
            {openboxSetup(), windowCount},
            {quorvelShows("Quorvel: letters on windows", defaultSettings, switcherHotKey, switcherWindows(windowCount)),
             rofiShows()},
            std::move(budgets)};
}

} // namespace

std::vector<Task> overlayTasks()
{
    return {framesTask(), lettersTask(25, {}),
            lettersTask(500, {{"25 letters among 500 windows, no compositor, at most 25 ms", 25.0, 0, {}, {}}})};
}

} // namespace quorvel::bench
