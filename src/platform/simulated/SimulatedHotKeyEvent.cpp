#include "platform/simulated/SimulatedHotKeyEvent.h"

#include "platform/simulated/Journal.h"

namespace quorvel {

OsStatus SimulatedHotKeyEvent::callNextHandler()
{
    journal.record("HotKeyEvent.callNextHandler()");
    ++calls;
    return osStatus::eventNotHandled;
}

} // namespace quorvel
