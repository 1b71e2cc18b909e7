#pragma once

#include <functional>
#include <string>

#include "platform/x11/GlibMainLoop.h"
#include "support/XClient.h"

namespace quorvel::x11 {

// The main loop of the adapters under test, which also wakes when the test's own connection hears of something.
class AdapterLoop {
public:
    explicit AdapterLoop(xtest::XClient& client) : observer(client) {}

    GlibMainLoop& mainLoop() { return loop; }

    // Turns the loop until the predicate holds; it is asked after every turn. Throws HarnessError naming `what` when
    // patience is over.
    void waitFor(const std::string& what, const std::function<bool()>& predicate);

    // Turns the loop until all work for its next turn is done; no timers are waited for.
    void drain();

private:
    class Observer : public LoopSource {
    public:
        explicit Observer(xtest::XClient& client);

    private:
        bool hasWork() override { return client.handleEvents(); }
        void dispatch() override {}

        xtest::XClient& client;
    };

    GlibMainLoop loop;
    Observer observer;
};

} // namespace quorvel::x11
