#include "preferences/UpdaterViewModel.h"

#include "platform/Updater.h"

namespace quorvel {

UpdaterViewModel::UpdaterViewModel(UpdaterController* updater)
    : updater(updater), checksAutomatically(updater != nullptr && updater->automaticallyChecksForUpdates())
{}

void UpdaterViewModel::setAutomaticallyChecksForUpdates(bool automatically)
{
    if (updater == nullptr) {
        return;
    }
    checksAutomatically = automatically;
    updater->setAutomaticallyChecksForUpdates(automatically);
    stateChanged.emit();
}

void UpdaterViewModel::checkForUpdates()
{
    if (updater != nullptr) {
        updater->checkForUpdates();
    }
}

} // namespace quorvel
