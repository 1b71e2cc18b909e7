#pragma once

#include <memory>
#include <vector>

#include "soak/Exercise.h"
#include "soak/Phase.h"
#include "soak/Verdict.h"

namespace quorvel::soak {

struct Plan {
    int overlayCycles = 20'000;
    int placements = 20'000;
    int switcherCycles = 5'000;
    int preferenceOpenings = 2'000;
    int intervals = 20; // of each phase
    Judging judging = Judging::everything;
};

// Lets one run of the program do all of a plan, prints what it finds, and has the figures afterwards.
class Soak {
public:
    Soak(SoakDesktop& desktop, const Plan& plan) : desktop(desktop), plan(plan) {}

    void run();

    const std::vector<Phase>& phases() const { return finished; }

    // False if something grew.
    bool isSteady() const { return steady; }

private:
    void runPhase(std::unique_ptr<Exercise> (*exercise)(SoakDesktop&), int cycles);

    SoakDesktop& desktop;
    Plan plan;
    std::vector<Phase> finished;
    bool steady = true;
};

} // namespace quorvel::soak
