#include "soak/Soak.h"

#include <algorithm>
#include <cstdio>

#include <fmt/format.h>

#include "soak/ProgramFigures.h"
#include "soak/Report.h"

namespace quorvel::soak {
namespace {

void show(const std::string& text)
{
    fmt::print("{}", text);
    std::fflush(stdout);
}

} // namespace

void Soak::run()
{
    runPhase(overlayExercise, plan.overlayCycles);
    runPhase(placementExercise, plan.placements);
    runPhase(switcherExercise, plan.switcherCycles);
    runPhase(preferencesExercise, plan.preferenceOpenings);
}

void Soak::runPhase(std::unique_ptr<Exercise> (*exercise)(SoakDesktop&), int cycles)
{
    const auto work = exercise(desktop);
    ProgramFigures figures(desktop);
    Phase phase{.name = work->name(), .latency = work->latency(), .keptBytesPerCycle = work->keptBytes()};
    show(heading(phase));
    int done = 0;
    for (int interval = 1; interval <= plan.intervals; ++interval) {
        bench::Series times;
        for (const int end = cycles * interval / plan.intervals; done < end; ++done) {
            times.add(work->cycle());
            // Read, for a program that cannot write its log stands still; not kept, for it becomes a gigabyte.
            desktop.quorvel().program().forgetOutput();
        }
        phase.intervals.push_back({done, figures.readAtRest(), times.median(), times.percentile95()});
        show(row(phase.intervals.back()));
    }
    for (const auto& verdict : judge(phase, plan.judging)) {
        show(line(verdict));
        steady = steady && verdict.isSteady;
    }
    finished.push_back(std::move(phase));
}

} // namespace quorvel::soak
