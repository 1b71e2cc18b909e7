#include "platform/x11/ConnectionSource.h"

#include "platform/x11/Connection.h"

namespace quorvel::x11 {

ConnectionSource::ConnectionSource(Connection& connection) : connection(connection)
{
    watchForInput(xcb_get_file_descriptor(connection.xcb()));
}

bool ConnectionSource::hasWork()
{
    connection.beginTurn();
    return connection.hasQueuedEvent() || connection.hasFailed();
}

void ConnectionSource::dispatch()
{
    connection.dispatchEvents();
    if (connection.isLost()) {
        stopWatching();
    }
}

} // namespace quorvel::x11
