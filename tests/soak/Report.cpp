#include "soak/Report.h"

#include <algorithm>
#include <array>
#include <ranges>
#include <set>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace quorvel::soak {
namespace {

using Cells = std::vector<std::string>;

// The server's name of a kind, and what its column is called. All others stand in one column.
struct Kind {
    const char* name;
    const char* title;
};
constexpr std::array kinds{Kind{"WINDOW", "windows"}, Kind{"PIXMAP", "pixmaps"}, Kind{"GC", "GCs"},
                           Kind{"PICTURE", "pictures"}, Kind{"PASSIVE GRAB", "key grabs"}};

Cells titles()
{
    Cells cells{"cycle", "RSS KiB"};
    for (const auto& kind : kinds) {
        cells.emplace_back(kind.title);
    }
    for (const char* title : {"other X", "pixmap KiB", "descriptors", "median ms", "95 % ms"}) {
        cells.emplace_back(title);
    }
    return cells;
}

Cells cellsOf(const Interval& interval)
{
    const auto& sample = interval.sample;
    Cells cells{fmt::format("{}", interval.cycle), fmt::format("{}", sample.residentKibibytes)};
    std::uint32_t others = 0;
    for (const auto count : sample.xResources | std::views::values) {
        others += count;
    }
    for (const auto& kind : kinds) {
        cells.push_back(fmt::format("{}", countOf(sample, kind.name)));
        others -= countOf(sample, kind.name);
    }
    cells.push_back(fmt::format("{}", others));
    cells.push_back(fmt::format("{:.1f}", static_cast<double>(sample.pixmapBytes) / 1024));
    cells.push_back(fmt::format("{}", sample.descriptors));
    cells.push_back(fmt::format("{:.2f}", interval.median.count()));
    cells.push_back(fmt::format("{:.2f}", interval.percentile95.count()));
    return cells;
}

std::string aligned(const Cells& cells)
{
    const auto heads = titles();
    std::string text;
    for (std::size_t column = 0; column < cells.size(); ++column) {
        text += fmt::format("{:>{}}", cells[column], std::max<std::size_t>(heads[column].size(), 7) + 2);
    }
    return text + "\n";
}

std::string markdownRow(const Cells& cells)
{
    return fmt::format("| {} |\n", fmt::join(cells, " | "));
}

} // namespace

std::string heading(const Phase& phase)
{
    return fmt::format("\n{}, latency: {}\n{}", phase.name, phase.latency, aligned(titles()));
}

std::string row(const Interval& interval)
{
    return aligned(cellsOf(interval));
}

std::string line(const Verdict& verdict)
{
    return fmt::format("  {:<7} {}: {}\n", verdict.isSteady ? "steady" : "GREW", verdict.quantity, verdict.finding);
}

std::string csv(const std::vector<Phase>& phases)
{
    std::set<std::string> names;
    for (const auto& phase : phases) {
        for (const auto& interval : phase.intervals) {
            const auto met = interval.sample.xResources | std::views::keys;
            names.insert(met.begin(), met.end());
        }
    }
    auto text = fmt::format("phase,cycle,resident KiB,pixmap bytes,descriptors,grabs,windows on the screen,median ms,"
                            "95 % ms,{}\n",
                            fmt::join(names, ","));
    for (const auto& phase : phases) {
        for (const auto& interval : phase.intervals) {
            const auto& sample = interval.sample;
            text += fmt::format("{},{},{},{},{},{},{},{:.3f},{:.3f}", phase.name, interval.cycle,
                                sample.residentKibibytes, sample.pixmapBytes, sample.descriptors, sample.grabs,
                                sample.visibleWindows, interval.median.count(), interval.percentile95.count());
            for (const auto& name : names) {
                text += fmt::format(",{}", countOf(sample, name));
            }
            text += "\n";
        }
    }
    return text;
}

std::string markdown(const std::vector<Phase>& phases, Judging judging)
{
    std::string text;
    for (const auto& phase : phases) {
        text += fmt::format("## {} {}\n\nLatency: {}.\n\n", phase.intervals.back().cycle, phase.name, phase.latency);
        text += markdownRow(titles()) + markdownRow(Cells(titles().size(), "--:"));
        for (const auto& interval : phase.intervals) {
            text += markdownRow(cellsOf(interval));
        }
        text += "\n| quantity | | found |\n|---|---|---|\n";
        for (const auto& verdict : judge(phase, judging)) {
            text += markdownRow({verdict.quantity, verdict.isSteady ? "steady" : "**grew**", verdict.finding});
        }
        text += "\n";
    }
    return text;
}

} // namespace quorvel::soak
