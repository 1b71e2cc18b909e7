#pragma once

#include <deque>
#include <functional>
#include <optional>
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

    // The same with its first button, whatever it is called.
    void chooseDefault() { answers.emplace_back(); }

    // The answers that no alert has had yet.
    void forgetAnswers() { answers.clear(); }

    const std::vector<Alert>& shown() const { return shownAlerts; }

private:
    struct Answer {
        std::optional<std::string> button; // none: the first
        std::function<void()> meanwhile;
    };

    Journal& journal;
    SimulatedMainQueue& mainQueue;
    std::deque<Answer> answers;
    std::vector<Alert> shownAlerts;
};

} // namespace quorvel
