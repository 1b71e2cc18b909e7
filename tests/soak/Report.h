#pragma once

#include <string>
#include <vector>

#include "soak/Phase.h"
#include "soak/Verdict.h"

namespace quorvel::soak {

// For the terminal: what a phase is called and the heads of its columns, a row for an interval, a line for a verdict.
std::string heading(const Phase& phase);
std::string row(const Interval& interval);
std::string line(const Verdict& verdict);

// A line for each interval of all phases, with each kind of X resource that was met in a column.
std::string csv(const std::vector<Phase>& phases);

// A table of the intervals and one of the verdicts for each phase.
std::string markdown(const std::vector<Phase>& phases, Judging judging);

} // namespace quorvel::soak
