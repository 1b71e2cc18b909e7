#pragma once

#include <memory>
#include <utility>

#include "platform/StatusBar.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

class FaultyStatusItem final : public StatusItem {
public:
    FaultyStatusItem(std::unique_ptr<StatusItem> real, PortFaults& faults) : real(std::move(real)), faults(faults) {}

    bool hasButton() const override
    {
        return faults.attempt("StatusItem.hasButton", [&] { return real->hasButton(); }, false);
    }

    void setImage(const Image& image) override
    {
        faults.attemptEffect("StatusItem.setImage", [&] { real->setImage(image); });
    }

    void setMenu(const Menu& menu, std::function<void(MenuCommand)> onCommand) override
    {
        faults.attemptEffect("StatusItem.setMenu", [&] { real->setMenu(menu, std::move(onCommand)); });
    }

private:
    std::unique_ptr<StatusItem> real;
    PortFaults& faults;
};

class FaultyStatusBar final : public StatusBar {
public:
    FaultyStatusBar(StatusBar& real, PortFaults& faults) : real(real), faults(faults) {}

    std::unique_ptr<StatusItem> createItem() override
    {
        return std::make_unique<FaultyStatusItem>(real.createItem(), faults);
    }

private:
    StatusBar& real;
    PortFaults& faults;
};

} // namespace quorvel
