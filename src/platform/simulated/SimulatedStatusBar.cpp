#include "platform/simulated/SimulatedStatusBar.h"

#include <utility>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedMainQueue.h"

namespace quorvel {

std::unique_ptr<StatusItem> SimulatedStatusBar::createItem()
{
    journal.record("StatusBar.createItem()");
    auto registration = std::make_shared<SimulatedStatusItem::Registration>();
    registration->hasButton = hasButtons;
    registrations.push_back(registration);
    return std::make_unique<SimulatedStatusItem>(journal, std::move(registration));
}

std::vector<SimulatedStatusBar::Item> SimulatedStatusBar::items() const
{
    std::vector<Item> result;
    for (const auto& each : registrations) {
        if (auto item = each.lock()) {
            result.push_back(std::move(item));
        }
    }
    return result;
}

bool SimulatedStatusBar::choose(std::string_view title)
{
    for (const auto& item : items()) {
        for (const auto& entry : item->menu.entries) {
            if (entry && entry->isEnabled && entry->title == title) {
                mainQueue.async([item = std::weak_ptr(item), command = entry->command] {
                    if (const auto current = item.lock()) {
                        current->onCommand(command);
                    }
                });
                return true;
            }
        }
    }
    return false;
}

} // namespace quorvel
