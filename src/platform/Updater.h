#pragma once

#include <memory>

namespace quorvel {

// The program's one connection to the place where newer versions are announced.
class UpdaterController {
public:
    UpdaterController() = default;
    UpdaterController(const UpdaterController&) = delete;
    UpdaterController& operator=(const UpdaterController&) = delete;
    virtual ~UpdaterController() = default;

    // Looks for a newer version and tells the user what came of it.
    virtual void checkForUpdates() = 0;

    // Whether that happens by itself from time to time. The updater keeps it across runs.
    virtual bool automaticallyChecksForUpdates() const = 0;
    virtual void setAutomaticallyChecksForUpdates(bool automatically) = 0;
};

class Updater {
public:
    Updater() = default;
    Updater(const Updater&) = delete;
    Updater& operator=(const Updater&) = delete;
    virtual ~Updater() = default;

    // Creates the controller and starts it.
    virtual std::unique_ptr<UpdaterController> createController() = 0;
};

} // namespace quorvel
