#include "x11/windows/AdapterLoop.h"

#include "support/Patience.h"

namespace quorvel::x11 {

AdapterLoop::Observer::Observer(xtest::XClient& client) : client(client)
{
    watchForInput(xcb_get_file_descriptor(client.connection()));
}

void AdapterLoop::waitFor(const std::string& what, const std::function<bool()>& predicate)
{
    const xtest::Deadline deadline;
    const auto reminder = loop.repeat(std::chrono::seconds(1), [] {}); // so that the deadline is seen
    while (!predicate()) {
        if (deadline.hasPassed()) {
            throw xtest::HarnessError("Waited in vain for " + what);
        }
        g_main_context_iteration(nullptr, TRUE);
    }
}

void AdapterLoop::drain()
{
    bool isDone = false;
    loop.async([&] { isDone = true; });
    while (!isDone) {
        g_main_context_iteration(nullptr, TRUE);
    }
}

} // namespace quorvel::x11
