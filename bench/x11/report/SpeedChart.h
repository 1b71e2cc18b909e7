#pragma once

#include "base/DrawList.h"
#include "base/Geometry.h"
#include "platform/TextMetrics.h"
#include "report/ChartPalette.h"
#include "report/Results.h"

namespace quorvel::bench {

struct Chart {
    Size size;
    DrawList drawing;
};

// Bars of the medians on a logarithmic scale, with marks at the 95th percentiles, grouped by task:
//
//                             Idle machine             Loaded machine
//     Task                    1 ms    10 ms            1 ms    10 ms
//     Quorvel: letter         ====|-- 0.93             ======|-- 1.56        no compositor
//                             =========|- 9.1          ==========|-- 12.1    picom
Chart speedChart(const Results& results, const ChartPalette& palette, const TextMetrics& metrics);

} // namespace quorvel::bench
