#pragma once

#include "platform/Updater.h"

namespace quorvel {

class Journal;

class SimulatedUpdaterController final : public UpdaterController {
public:
    explicit SimulatedUpdaterController(Journal& journal) : journal(journal) {}

    void checkForUpdates() override;

private:
    Journal& journal;
};

} // namespace quorvel
