#pragma once

#include "platform/Updater.h"

namespace quorvel {

class Journal;

class SimulatedUpdater final : public Updater {
public:
    explicit SimulatedUpdater(Journal& journal) : journal(journal) {}

    std::unique_ptr<UpdaterController> createController() override;

private:
    Journal& journal;
};

} // namespace quorvel
