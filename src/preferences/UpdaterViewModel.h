#pragma once

#include <functional>
#include <utility>

#include "base/Signal.h"

namespace quorvel {

class UpdaterController;

// Mirrors whether the updater checks by itself. The updater keeps that, not the settings.
class UpdaterViewModel {
public:
    // Null where this build does not update itself; otherwise the controller outlives the model.
    explicit UpdaterViewModel(UpdaterController* updater);

    bool isAvailable() const { return updater != nullptr; }

    bool automaticallyChecksForUpdates() const { return checksAutomatically; }
    void setAutomaticallyChecksForUpdates(bool automatically);

    // Calls `changed` after that has changed, until the token goes.
    Subscription observe(std::function<void()> changed) { return stateChanged.observe(std::move(changed)); }

    void checkForUpdates();

private:
    UpdaterController* updater;
    bool checksAutomatically;
    Signal<> stateChanged;
};

} // namespace quorvel
