#pragma once

#include <vector>

#include "report/ChartPalette.h"
#include "report/SpeedChart.h"
#include "soak/Phase.h"

namespace quorvel::soak {

// A row for each phase, with bars from zero for each of its intervals: memory, X resources, latency. The bars of
// latency are medians, with paler ones of the 95th percentiles behind them that may be cut.
//
//                      Resident memory       X resources        Latency
//     placements       ▅▅▅▅▅▅▅▅ 20.5 MiB     ▅▅▅▅▅▅▅▅ 37        ▃▃▃▃▃▃▃▃ 1.10 ms
//     20000
bench::Chart soakChart(const std::vector<Phase>& phases, const bench::ChartPalette& palette);

} // namespace quorvel::soak
