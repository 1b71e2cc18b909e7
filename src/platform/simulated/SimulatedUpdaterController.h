#pragma once

#include "platform/Updater.h"

namespace quorvel {

class Journal;

class SimulatedUpdaterController final : public UpdaterController {
public:
    SimulatedUpdaterController(Journal& journal, bool& checksAutomatically)
        : journal(journal), checksAutomatically(checksAutomatically)
    {}

    void checkForUpdates() override;
    bool automaticallyChecksForUpdates() const override { return checksAutomatically; }
    void setAutomaticallyChecksForUpdates(bool automatically) override { checksAutomatically = automatically; }

private:
    Journal& journal;
    bool& checksAutomatically;
};

} // namespace quorvel
