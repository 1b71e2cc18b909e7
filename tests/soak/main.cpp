// Uses the program for a long time on a display of its own and looks whether anything grows.
//
//   soak PROGRAM FOLDER [--cycles FACTOR | --short]
//
// FOLDER gets what was found as soak.csv, soak.md, soak-light.svg and soak-dark.svg. --cycles multiplies the numbers of
// cycles, --short does few and judges neither memory nor latency. Exits with status 1 when something grew, 2 when the
// program failed.

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "report/SvgFile.h"
#include "soak/Report.h"
#include "soak/Soak.h"
#include "soak/SoakChart.h"
#include "support/Patience.h"

namespace quorvel::soak {
namespace {

constexpr Plan shortPlan{.overlayCycles = 200,
                         .placements = 200,
                         .switcherCycles = 60,
                         .preferenceOpenings = 12,
                         .intervals = 4,
                         .judging = Judging::exactOnly};

std::optional<Plan> multiplied(std::string_view word)
{
    double factor = 0.0;
    const auto result = std::from_chars(word.begin(), word.end(), factor);
    if (result.ec != std::errc() || result.ptr != word.end() || !(factor >= 0.01 && factor <= 1000.0)) {
        return std::nullopt;
    }
    Plan plan;
    for (int* const cycles : {&plan.overlayCycles, &plan.placements, &plan.switcherCycles, &plan.preferenceOpenings}) {
        *cycles = static_cast<int>(*cycles * factor);
    }
    return plan;
}

std::optional<Plan> parse(std::span<char*> words)
{
    if (words.empty()) {
        return Plan();
    }
    if (words.size() == 1 && std::string_view(words[0]) == "--short") {
        return shortPlan;
    }
    if (words.size() == 2 && std::string_view(words[0]) == "--cycles") {
        return multiplied(words[1]);
    }
    return std::nullopt;
}

void printEndOfLog(xtest::ProgramUnderTest& program)
{
    constexpr std::size_t mostLines = 20;
    const std::span lines(program.outputLines());
    fmt::print(stderr, "the last lines of the program:\n{}\n{}\n",
               fmt::join(lines.last(std::min(lines.size(), mostLines)), "\n"), fmt::join(program.errorLines(), "\n"));
}

void writeFigures(const std::vector<Phase>& phases, Judging judging, const std::filesystem::path& folder)
{
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "soak.csv") << csv(phases);
    std::ofstream(folder / "soak.md") << markdown(phases, judging);
    const x11::TextLayouts layouts("Inter, DejaVu Sans");
    bench::writeSvg(folder / "soak-light.svg", soakChart(phases, bench::ChartPalette::light()), layouts);
    bench::writeSvg(folder / "soak-dark.svg", soakChart(phases, bench::ChartPalette::dark()), layouts);
}

int run(const std::filesystem::path& program, const std::filesystem::path& folder, const Plan& plan)
{
    SoakDesktop desktop(std::filesystem::absolute(program));
    Soak soak(desktop, plan);
    try {
        soak.run();
    } catch (const xtest::HarnessError&) {
        printEndOfLog(desktop.quorvel().program());
        throw;
    }
    const int status = desktop.quorvel().end();
    const auto& complaints = desktop.quorvel().program().errorLines();
    if (status != 0 || !complaints.empty()) {
        throw xtest::HarnessError(
            fmt::format("the program ended with status {} and said: {}", status, fmt::join(complaints, "\n")));
    }
    writeFigures(soak.phases(), plan.judging, folder);
    return soak.isSteady() ? 0 : 1;
}

} // namespace
} // namespace quorvel::soak

int main(int argc, char** argv)
{
    const std::span words(argv, static_cast<std::size_t>(argc));
    const auto plan = argc < 3 ? std::nullopt : quorvel::soak::parse(words.subspan(3));
    if (!plan) {
        std::fputs("usage: soak PROGRAM FOLDER [--cycles FACTOR | --short]; FACTOR is 0.01 at least\n", stderr);
        return 2;
    }
    try {
        return quorvel::soak::run(words[1], words[2], *plan);
    } catch (const std::exception& error) {
        fmt::print(stderr, "soak: {}\n", error.what());
        return 2;
    }
}
