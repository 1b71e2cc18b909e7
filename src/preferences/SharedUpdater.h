#pragma once

#include <memory>

#include "platform/Updater.h"

namespace quorvel {

// The one updater controller of the process, created when it is first asked for.
class SharedUpdater {
public:
    // `updater` is null where this build does not update itself.
    explicit SharedUpdater(Updater* updater) : updater(updater) {}

    // Null where this build does not update itself.
    UpdaterController* controller()
    {
        if (!sharedController && updater != nullptr) {
            sharedController = updater->createController();
        }
        return sharedController.get();
    }

private:
    Updater* updater;
    std::unique_ptr<UpdaterController> sharedController;
};

} // namespace quorvel
