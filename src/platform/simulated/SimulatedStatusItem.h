#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "platform/StatusBar.h"

namespace quorvel {

class Journal;

class SimulatedStatusItem final : public StatusItem {
public:
    // What the status bar knows of an item.
    struct Registration {
        bool hasButton = true;
        std::optional<Image> image;
        Menu menu;
        std::function<void(MenuCommand)> onCommand;
    };

    SimulatedStatusItem(Journal& journal, std::shared_ptr<Registration> registration);
    SimulatedStatusItem(const SimulatedStatusItem&) = delete;
    SimulatedStatusItem& operator=(const SimulatedStatusItem&) = delete;
    ~SimulatedStatusItem() override;

    bool hasButton() const override;
    void setImage(const Image& image) override;
    void setMenu(const Menu& menu, std::function<void(MenuCommand)> onCommand) override;

private:
    Journal& journal;
    std::shared_ptr<Registration> registration;
};

} // namespace quorvel
