#pragma once

#include "platform/x11/LoopSource.h"

namespace quorvel::x11 {

class Connection;

// Lets the main loop deliver a connection's events and send its requests. Requests leave whenever the loop is about to
// wait. Events that a wait for some reply read along the way are delivered as well as those that still lie in the
// socket.
class ConnectionSource : public LoopSource {
public:
    explicit ConnectionSource(Connection& connection);

private:
    bool hasWork() override;
    void dispatch() override;

    Connection& connection;
};

} // namespace quorvel::x11
