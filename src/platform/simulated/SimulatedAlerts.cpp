#include "platform/simulated/SimulatedAlerts.h"

#include <algorithm>
#include <utility>

#include "base/FatalError.h"
#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedMainQueue.h"

namespace quorvel {

std::size_t SimulatedAlerts::runModal(const Alert& alert)
{
    journal.record("Alerts.runModal({})", alert.messageText);
    shownAlerts.push_back(alert);
    if (answers.empty()) {
        mainQueue.drain();
        return alert.buttons.size() - 1;
    }
    const auto answer = std::move(answers.front());
    answers.pop_front();
    if (answer.meanwhile) {
        answer.meanwhile();
    }
    mainQueue.drain();
    if (!answer.button) {
        return 0;
    }
    const auto button = std::ranges::find(alert.buttons, *answer.button);
    if (button == alert.buttons.end()) {
        fatalError("The alert \"" + alert.messageText + "\" has no button \"" + *answer.button + "\"");
    }
    return static_cast<std::size_t>(button - alert.buttons.begin());
}

void SimulatedAlerts::choose(std::string button, std::function<void()> meanwhile)
{
    answers.push_back({std::move(button), std::move(meanwhile)});
}

} // namespace quorvel
