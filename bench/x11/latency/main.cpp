// Measures what a person waits for: from a key press to painted overlays and to a window in its place, for Quorvel and
// for other ways of doing the same, all in one run on displays of its own.
//
//   latency [--runs N] [--csv FILE] [--table overlay|composited|placement|switcher|move]
//
// Exits with status 1 when a budget is not met, 2 when something could not be measured.

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <exception>
#include <fstream>
#include <functional>
#include <string_view>

#include <fmt/format.h>

#include "latency/BenchDesktop.h"
#include "latency/Measurements.h"
#include "latency/MoveTable.h"
#include "latency/Report.h"
#include "latency/SwitcherTables.h"
#include "support/Patience.h"

namespace quorvel::bench {
namespace {

// Six tiles as the only layout, so that its frames are what the hot key shows; two halves as the second.
constexpr auto sixTilesSettings = R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
  <key>didSeedDefaultLayouts</key><true/>
  <key>selectedLayoutIDs</key><array><string>six_tiled</string></array>
  <key>layoutShortcuts</key><dict><key>six_tiled</key><string>1</string></dict>
</dict></plist>
)";
constexpr auto halvesSettings = R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict>
  <key>didSeedDefaultLayouts</key><true/>
  <key>selectedLayoutIDs</key><array><string>two_side_by_side</string></array>
</dict></plist>
)";

const Chord overlayHotKey{{XKB_KEY_Super_L, XKB_KEY_Shift_L}, XKB_KEY_o};
const Chord superF9{{XKB_KEY_Super_L}, XKB_KEY_F9};
const Chord superF10{{XKB_KEY_Super_L}, XKB_KEY_F10};

Report overlayReport(Compositing compositing, int runs)
{
    BenchDesktop desktop(compositing);
    const bool composited = compositing == Compositing::on;
    std::vector<Row> rows;
    {
        QuorvelProcess quorvel(desktop, sixTilesSettings);
        rows.push_back({"Quorvel, six frames and legend",
                        overlayTimes(desktop, runs, overlayHotKey, 7, [&] { quorvel.drainOutput(); })});
    }
    {
        const auto minimal = desktop.start({QUORVEL_MINIMAL_OVERLAY, composited ? "alpha" : "opaque"});
        desktop.eventProbe().rest();
        rows.push_back({"minimal xcb, six prepared windows", overlayTimes(desktop, runs, superF9, 6)});
    }
    {
        const auto daemon = desktop.startShortcutDaemon("super + F9\n  rofi -show window\n");
        rows.push_back({"sxhkd, rofi -show window", overlayTimes(desktop, runs, superF9, 1)});
    }
    const auto quorvel = rows[0].series.median();
    const auto minimal = rows[1].series.median();
    const auto rofi = rows[2].series.median();
    Report report(composited ? "Hot key to painted overlay, picom (xrender)"
                             : "Hot key to painted overlay, no compositor",
                  std::move(rows));
    if (composited) {
        report.addBudget({"at most 1.5 times six prepared windows", 1.5, quorvel / minimal});
    } else {
        report.addBudget({"at most 8 ms", 8.0, quorvel.count()});
        report.addBudget({"at most a third of rofi's time", 1.0 / 3.0, quorvel / rofi});
    }
    return report;
}

Report placementReport(int runs)
{
    BenchDesktop desktop(Compositing::off);
    auto& probe = desktop.eventProbe();
    std::vector<Row> rows;
    {
        QuorvelProcess quorvel(desktop, halvesSettings);
        const auto showOverlay = [&] {
            quorvel.drainOutput();
            if (!probe.pressUntilPainted(overlayHotKey, 2)) {
                throw xtest::HarnessError("the overlay did not come up");
            }
        };
        rows.push_back({"Quorvel, letter to place",
                        placementTimes(desktop, runs, {Chord{{}, XKB_KEY_a}, Chord{{}, XKB_KEY_b}}, showOverlay)});
    }
    {
        const auto minimal = desktop.start(
            {QUORVEL_MINIMAL_PLACE, fmt::format("{:#x}", desktop.target()), "0,0,960,1080", "960,0,960,1080"});
        probe.rest();
        rows.push_back({"minimal xcb, one request on a hot key", placementTimes(desktop, runs, {superF10, superF10})});
    }
    rows.push_back(
        {"openbox, MoveResizeTo binding",
         placementTimes(desktop, runs, {Chord{{XKB_KEY_Super_L}, XKB_KEY_F1}, Chord{{XKB_KEY_Super_L}, XKB_KEY_F2}})});
    {
        const auto daemon = desktop.startShortcutDaemon("super + F9\n  wmctrl -r :ACTIVE: -e 1,0,0,958,1055\n\n"
                                                        "super + F10\n  wmctrl -r :ACTIVE: -e 1,960,0,958,1055\n");
        rows.push_back({"sxhkd, wmctrl -r :ACTIVE: -e", placementTimes(desktop, runs, {superF9, superF10})});
    }
    const auto ratio = rows[0].series.median() / rows[1].series.median();
    Report report("Key press to window in place, openbox", std::move(rows));
    report.addBudget({"at most 1.5 times one request", 1.5, ratio});
    return report;
}

struct Options {
    int runs = 40;
    std::string csvFile;
    std::string table; // the only one to measure; empty for all
};

struct Table {
    std::string_view name;
    Report (*measure)(int runs);
};

constexpr std::array tables = {
    Table{"overlay", [](int runs) { return overlayReport(Compositing::off, runs); }},
    Table{"composited", [](int runs) { return overlayReport(Compositing::on, runs); }},
    Table{"placement", placementReport},
    Table{"switcher", switcherReport},
    Table{"move", moveReport},
};

std::optional<Options> parse(int count, char** words)
{
    Options options;
    for (int index = 1; index < count; index += 2) {
        const std::string_view name = words[index];
        if (index + 1 == count) {
            return std::nullopt;
        }
        const std::string_view value = words[index + 1];
        if (name == "--runs") {
            const auto result = std::from_chars(value.begin(), value.end(), options.runs);
            if (result.ec != std::errc() || result.ptr != value.end() || options.runs < 1) {
                return std::nullopt;
            }
        } else if (name == "--csv") {
            options.csvFile = value;
        } else if (name == "--table" && std::ranges::find(tables, value, &Table::name) != tables.end()) {
            options.table = value;
        } else {
            return std::nullopt;
        }
    }
    return options;
}

int run(const Options& options)
{
    bool met = true;
    std::string csv;
    for (const auto& table : tables) {
        if (!options.table.empty() && options.table != table.name) {
            continue;
        }
        const auto report = table.measure(options.runs);
        fmt::print("{}\n", report.text());
        std::fflush(stdout);
        csv += report.csv();
        met = met && report.allBudgetsMet();
    }
    if (!options.csvFile.empty()) {
        std::ofstream(options.csvFile) << csv;
    }
    return met ? 0 : 1;
}

} // namespace
} // namespace quorvel::bench

int main(int argumentCount, char** arguments)
{
    const auto options = quorvel::bench::parse(argumentCount, arguments);
    if (!options) {
        std::fputs("usage: latency [--runs N] [--csv FILE] [--table overlay|composited|placement|switcher|move]\n",
                   stderr);
        return 2;
    }
    try {
        return quorvel::bench::run(*options);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "latency: %s\n", error.what());
        return 2;
    }
}
