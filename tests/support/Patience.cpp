#include "support/Patience.h"

#include <algorithm>
#include <cerrno>

#include <fmt/format.h>
#include <poll.h>

namespace quorvel::xtest {

int Deadline::remaining() const
{
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
    return static_cast<int>(std::max<std::chrono::milliseconds::rep>(left.count(), 0));
}

void waitUntilReadable(int descriptor, const Deadline& deadline, const std::string& what)
{
    for (;;) {
        pollfd entry{.fd = descriptor, .events = POLLIN, .revents = 0};
        const int ready = poll(&entry, 1, deadline.remaining());
        if (ready > 0) {
            return;
        }
        if (ready == 0) {
            throw HarnessError(fmt::format("waited {} s in vain for {}", Deadline::patience.count(), what));
        }
        if (errno != EINTR) {
            throw HarnessError(fmt::format("poll failed while waiting for {}", what));
        }
    }
}

} // namespace quorvel::xtest
