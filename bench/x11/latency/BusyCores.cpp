#include "latency/BusyCores.h"

#include <algorithm>
#include <thread>

namespace quorvel::bench {

BusyCores::BusyCores()
{
    for (unsigned core = 0; core < count(); ++core) {
        // At the ordinary priority, also where the benchmark has a higher one: nobody else would ever run again.
        processes.push_back(std::make_unique<xtest::ChildProcess>(
            xtest::Command{{"chrt", "--other", "0", "sh", "-c", "while :; do :; done"}}));
    }
}

unsigned BusyCores::count()
{
    return std::max(1U, std::thread::hardware_concurrency());
}

} // namespace quorvel::bench
