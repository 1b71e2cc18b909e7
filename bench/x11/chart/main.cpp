// Makes a table and pictures of what was measured.
//
//   speed_report FILE... FOLDER
//
// Each FILE is what `latency --json FILE` wrote, of the same tasks under other conditions where there are several;
// FOLDER gets speed.md, speed-light.svg and speed-dark.svg.

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "platform/x11/painting/X11TextMetrics.h"
#include "report/ResultsJson.h"
#include "report/ResultsTable.h"
#include "report/SpeedChart.h"
#include "report/SvgFile.h"

namespace quorvel::bench {
namespace {

Results readResults(const std::filesystem::path& path)
{
    std::ifstream file(path);
    if (!file) {
        throw std::runtime_error("cannot read " + path.string());
    }
    return fromJson(std::string(std::istreambuf_iterator(file), {}));
}

void writeReport(const Results& results, const std::filesystem::path& folder)
{
    std::ofstream(folder / "speed.md") << tableOf(results) << "\n" << budgetListOf(results);
    const x11::TextLayouts layouts("Inter, DejaVu Sans");
    const x11::X11TextMetrics metrics(layouts);
    writeSvg(folder / "speed-light.svg", speedChart(results, ChartPalette::light(), metrics), layouts);
    writeSvg(folder / "speed-dark.svg", speedChart(results, ChartPalette::dark(), metrics), layouts);
}

} // namespace
} // namespace quorvel::bench

int main(int argumentCount, char** arguments)
{
    if (argumentCount < 3) {
        std::fputs("usage: speed_report FILE... FOLDER\n", stderr);
        return 2;
    }
    try {
        std::vector<quorvel::bench::Results> runs;
        for (int index = 1; index < argumentCount - 1; ++index) {
            runs.push_back(quorvel::bench::readResults(arguments[index]));
        }
        quorvel::bench::writeReport(quorvel::bench::combined(runs), arguments[argumentCount - 1]);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "speed_report: %s\n", error.what());
        return 2;
    }
}
