#include "x11/windows/AdapterLoop.h"

namespace quorvel::x11 {

AdapterLoop::AdapterLoop(xtest::XClient& client)
    : observer(client), reminder(loop.repeat(std::chrono::seconds(1), [] {}))
{}

AdapterLoop::Observer::Observer(xtest::XClient& client) : client(client)
{
    watchForInput(xcb_get_file_descriptor(client.connection()));
}

void AdapterLoop::waitFor(const std::string& what, const std::function<bool()>& predicate)
{
    const xtest::Deadline end;
    while (!predicate()) {
        if (end.hasPassed()) {
            throw xtest::HarnessError("Waited in vain for " + what);
        }
        g_main_context_iteration(nullptr, TRUE);
    }
}

bool AdapterLoop::turn()
{
    g_main_context_iteration(nullptr, TRUE);
    return !deadline.hasPassed();
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
