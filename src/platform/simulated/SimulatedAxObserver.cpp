#include "platform/simulated/SimulatedAxObserver.h"

#include "platform/simulated/SimulatedAccessibility.h"

namespace quorvel {

SimulatedAxObserver::SimulatedAxObserver(SimulatedAccessibility& accessibility,
                                         std::shared_ptr<Registration> registration)
    : accessibility(accessibility), registration(std::move(registration))
{}

SimulatedAxObserver::~SimulatedAxObserver() = default;

std::expected<void, AxError> SimulatedAxObserver::addNotification(const AxElementRef& element, std::string_view name)
{
    return accessibility.addNotification(*registration, element, name);
}

std::expected<void, AxError> SimulatedAxObserver::removeNotification(const AxElementRef& element, std::string_view name)
{
    return accessibility.removeNotification(*registration, element, name);
}

void SimulatedAxObserver::startDelivery()
{
    accessibility.startDelivery(*registration);
}

} // namespace quorvel
