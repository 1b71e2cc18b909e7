#include "platform/simulated/SimulatedUpdater.h"

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedUpdaterController.h"

namespace quorvel {

std::unique_ptr<UpdaterController> SimulatedUpdater::createController()
{
    journal.record("Updater.createController()");
    return std::make_unique<SimulatedUpdaterController>(journal, checksAutomatically);
}

} // namespace quorvel
