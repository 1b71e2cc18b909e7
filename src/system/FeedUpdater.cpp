#include "system/FeedUpdater.h"

#include <utility>

#include "system/FeedUpdaterController.h"

namespace quorvel {

FeedUpdater::FeedUpdater(FeedUpdaterEnvironment environment) : environment(std::move(environment)) {}

std::unique_ptr<UpdaterController> FeedUpdater::createController()
{
    return std::make_unique<FeedUpdaterController>(environment);
}

} // namespace quorvel
