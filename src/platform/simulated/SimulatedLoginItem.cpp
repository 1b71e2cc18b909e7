#include "platform/simulated/SimulatedLoginItem.h"

#include "platform/simulated/Journal.h"

namespace quorvel {

LoginItemStatus SimulatedLoginItem::status() const
{
    journal.record("LoginItem.status()");
    return current;
}

std::expected<void, std::string> SimulatedLoginItem::registerItem()
{
    journal.record("LoginItem.registerItem()");
    return change(registered);
}

std::expected<void, std::string> SimulatedLoginItem::unregisterItem()
{
    journal.record("LoginItem.unregisterItem()");
    return change(LoginItemStatus::notRegistered);
}

std::expected<void, std::string> SimulatedLoginItem::change(LoginItemStatus status)
{
    if (refusal) {
        return std::unexpected(*refusal);
    }
    current = status;
    return {};
}

} // namespace quorvel
