#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "platform/StatusBar.h"
#include "platform/simulated/SimulatedStatusItem.h"

namespace quorvel {

class Journal;
class SimulatedMainQueue;

class SimulatedStatusBar final : public StatusBar {
public:
    using Item = std::shared_ptr<const SimulatedStatusItem::Registration>;

    SimulatedStatusBar(Journal& journal, SimulatedMainQueue& mainQueue) : journal(journal), mainQueue(mainQueue) {}

    std::unique_ptr<StatusItem> createItem() override;

    // The items that exist, in order of creation.
    std::vector<Item> items() const;

    // Chooses the enabled entry of that title in an item's menu, to arrive later; false if there is none.
    bool choose(std::string_view title);

    // Items that are created from now on have no button.
    void loseButtons() { hasButtons = false; }

private:
    Journal& journal;
    SimulatedMainQueue& mainQueue;
    std::vector<std::weak_ptr<SimulatedStatusItem::Registration>> registrations;
    bool hasButtons = true;
};

} // namespace quorvel
