#pragma once

#include "latency/Report.h"

namespace quorvel::bench {

// From an arrow key of the move/resize mode to the moved window.
Report moveReport(int runs);

} // namespace quorvel::bench
