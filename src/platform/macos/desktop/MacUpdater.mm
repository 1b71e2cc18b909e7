#include "platform/macos/desktop/MacUpdater.h"

#include "platform/macos/Retained.h"
#include "platform/macos/desktop/UpdateFramework.h"

namespace quorvel::macos {

namespace {

Class controllerClass()
{
    return NSClassFromString(@"SPUStandardUpdaterController");
}

class MacUpdaterController final : public UpdaterController {
public:
    explicit MacUpdaterController(Retained<SPUStandardUpdaterController*> controller)
        : controller(std::move(controller))
    {}

    void checkForUpdates() override { [controller.get() checkForUpdates:nil]; }

    bool automaticallyChecksForUpdates() const override
    {
        return [[controller.get() updater] automaticallyChecksForUpdates] != NO;
    }

    void setAutomaticallyChecksForUpdates(bool automatically) override
    {
        [[controller.get() updater] setAutomaticallyChecksForUpdates:automatically ? YES : NO];
    }

private:
    Retained<SPUStandardUpdaterController*> controller;
};

} // namespace

std::unique_ptr<MacUpdater> MacUpdater::make()
{
    return controllerClass() == Nil ? nullptr : std::unique_ptr<MacUpdater>(new MacUpdater);
}

std::unique_ptr<UpdaterController> MacUpdater::createController()
{
    return std::make_unique<MacUpdaterController>(Retained<SPUStandardUpdaterController*>::adopt(
        [[controllerClass() alloc] initWithStartingUpdater:YES updaterDelegate:nil userDriverDelegate:nil]));
}

} // namespace quorvel::macos
