#pragma once

#include <string>

#include "report/Results.h"

namespace quorvel::bench {

// One table in Markdown, its columns aligned: a line for each contestant of each task, a column for each condition. A
// cell has the median, the 95th percentile and how many times the median of the task's first line that is.
std::string tableOf(const Results& results);

// A list in Markdown of the limits and what came of them; empty where there are none.
std::string budgetListOf(const Results& results);

// A time in milliseconds with as many digits as are worth reading: 0.93, 31.8, 153.
std::string timeText(Milliseconds time);

} // namespace quorvel::bench
