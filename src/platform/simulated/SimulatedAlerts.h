#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/Alerts.h"

namespace quorvel {

class Journal;
class SimulatedMainQueue;

// Answers alerts as it was told to, one answer for each; without one it closes the alert.
class SimulatedAlerts final : public Alerts {
public:
    SimulatedAlerts(Journal& journal, SimulatedMainQueue& mainQueue) : journal(journal), mainQueue(mainQueue) {}

    std::size_t runModal(const Alert& alert) override;

    // The next alert without an answer gets that button pressed, after `meanwhile` has happened under it.
    void choose(std::string button, std::function<void()> meanwhile = nullptr);

    const std::vector<Alert>& shown() const { return shownAlerts; }

private:
    struct Answer {
        std::string button;
        std::function<void()> meanwhile;
    };

    Journal& journal;
    SimulatedMainQueue& mainQueue;
    std::deque<Answer> answers;
    std::vector<Alert> shownAlerts;
};

} // namespace quorvel
