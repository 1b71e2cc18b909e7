#include "platform/simulated/SimulatedUpdaterController.h"

#include "platform/simulated/Journal.h"

namespace quorvel {

void SimulatedUpdaterController::checkForUpdates()
{
    journal.record("UpdaterController.checkForUpdates()");
}

} // namespace quorvel
