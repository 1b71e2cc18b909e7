#pragma once

#include "latency/Report.h"

namespace quorvel::bench {

// From the hot key of the focus switcher to painted letters with few and with many windows, and from a letter to its
// window being active.
Report switcherReport(int runs);

} // namespace quorvel::bench
