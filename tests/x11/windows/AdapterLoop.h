#pragma once

#include <functional>
#include <string>

#include "platform/x11/GlibMainLoop.h"
#include "support/Patience.h"
#include "support/XClient.h"

namespace quorvel::x11 {

// The main loop of the adapters under test, which also wakes when the test's own connection hears of something.
class AdapterLoop {
public:
    explicit AdapterLoop(xtest::XClient& client);

    GlibMainLoop& mainLoop() { return loop; }

    // Turns the loop until the predicate holds; it is asked after every turn. Throws HarnessError naming `what` when
    // patience is over.
    void waitFor(const std::string& what, const std::function<bool()>& predicate);

    // One turn, which waits for something to do; false if patience, which begins with this object, is over.
    bool turn();

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
    xtest::Deadline deadline;
    Subscription reminder; // wakes the loop, so that the end of patience is seen
};

} // namespace quorvel::x11
