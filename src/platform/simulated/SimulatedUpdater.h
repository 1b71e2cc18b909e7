#pragma once

#include "platform/Updater.h"

namespace quorvel {

class Journal;

class SimulatedUpdater final : public Updater {
public:
    explicit SimulatedUpdater(Journal& journal) : journal(journal) {}

    std::unique_ptr<UpdaterController> createController() override;

    bool checksAutomatically = true; // what it keeps across runs

private:
    Journal& journal;
};

} // namespace quorvel
