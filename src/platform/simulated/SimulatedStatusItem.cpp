#include "platform/simulated/SimulatedStatusItem.h"

#include <utility>

#include "platform/simulated/Journal.h"

namespace quorvel {

SimulatedStatusItem::SimulatedStatusItem(Journal& journal, std::shared_ptr<Registration> registration)
    : journal(journal), registration(std::move(registration))
{}

SimulatedStatusItem::~SimulatedStatusItem()
{
    journal.record("StatusItem.destroy()");
}

bool SimulatedStatusItem::hasButton() const
{
    journal.record("StatusItem.hasButton()");
    return registration->hasButton;
}

void SimulatedStatusItem::setImage(const Image& image)
{
    journal.record("StatusItem.setImage({})", image.name);
    registration->image = image;
}

void SimulatedStatusItem::setMenu(const Menu& menu, std::function<void(MenuCommand)> onCommand)
{
    journal.record("StatusItem.setMenu({})", menu.entries.size());
    registration->menu = menu;
    registration->onCommand = std::move(onCommand);
}

} // namespace quorvel
