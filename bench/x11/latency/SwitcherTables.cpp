#include "latency/SwitcherTables.h"

#include <algorithm>
#include <utility>

#include <fmt/format.h>

#include "latency/ManyWindows.h"
#include "latency/Measurements.h"
#include "support/Patience.h"

namespace quorvel::bench {

namespace {

const Chord switcherHotKey{{XKB_KEY_Super_L, XKB_KEY_Shift_L}, XKB_KEY_f};
constexpr std::size_t letterCount = 25; // one letter is the key that lists minimized windows
constexpr std::size_t desktopWindows = 3;

// Borders and labels.
std::size_t shownWindows(std::size_t windowCount)
{
    return 2 * std::min(windowCount, letterCount);
}

Row paintedRow(std::size_t windowCount, int runs)
{
    BenchDesktop desktop(Compositing::off);
    const ManyWindows windows(desktop, windowCount - desktopWindows);
    QuorvelProcess quorvel(desktop, "<plist version=\"1.0\"><dict></dict></plist>");
    return {fmt::format("hot key to painted letters, {} windows", windowCount),
            overlayTimes(desktop, runs, switcherHotKey, shownWindows(windowCount), [&] { quorvel.drainOutput(); })};
}

// The letter of the window that is second from the front, so that each run chooses the one that the last one left.
Row activationRow(std::size_t windowCount, int runs)
{
    BenchDesktop desktop(Compositing::off);
    const ManyWindows windows(desktop, windowCount - desktopWindows);
    QuorvelProcess quorvel(desktop, "<plist version=\"1.0\"><dict></dict></plist>");
    auto& probe = desktop.eventProbe();
    auto series = repeat(runs, [&] {
        quorvel.drainOutput();
        if (!probe.pressUntilPainted(switcherHotKey, shownWindows(windowCount))) {
            throw xtest::HarnessError("the focus switcher did not come up");
        }
        return probe.pressUntilOtherActive({{}, XKB_KEY_b});
    });
    return {fmt::format("letter to active window, {} windows", windowCount), std::move(series)};
}

} // namespace

Report switcherReport(int runs)
{
    std::vector<Row> rows;
    for (const std::size_t windowCount : {5U, 25U, 500U}) {
        rows.push_back(paintedRow(windowCount, runs));
    }
    rows.push_back(activationRow(letterCount, runs));
    const auto manyWindows = rows[2].series.median();
    Report report("Focus switcher, no compositor", std::move(rows));
    report.addBudget({"25 letters among 500 windows: at most 25 ms", 25.0, manyWindows.count()});
    return report;
}

} // namespace quorvel::bench
