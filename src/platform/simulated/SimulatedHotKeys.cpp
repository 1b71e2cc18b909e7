#include "platform/simulated/SimulatedHotKeys.h"

#include <algorithm>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedHotKeyEvent.h"
#include "platform/simulated/SimulatedMainQueue.h"

namespace quorvel {

OsStatus SimulatedHotKeys::installHandler(HotKeyHandler newHandler)
{
    journal.record("HotKeys.installHandler()");
    if (installationStatus == osStatus::success) {
        handler = std::move(newHandler);
    }
    return installationStatus;
}

void SimulatedHotKeys::removeHandler()
{
    journal.record("HotKeys.removeHandler()");
    handler = nullptr;
}

HotKeyRegistration SimulatedHotKeys::registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers, HotKeyId id)
{
    journal.record("HotKeys.registerHotKey({}, {}, {})", keyCode, modifiers, id.id);
    if (registrationStatus != osStatus::success) {
        return {registrationStatus, noHotKeyRef};
    }
    const Combination combination{keyCode, modifiers};
    if (heldElsewhere.contains(combination) || idOf(combination)) {
        return {osStatus::hotKeyExists, noHotKeyRef};
    }
    if (losesReferences) {
        return {osStatus::success, noHotKeyRef};
    }
    registrations.emplace(nextRef, Registration{combination, id});
    return {osStatus::success, nextRef++};
}

OsStatus SimulatedHotKeys::unregisterHotKey(HotKeyRef ref)
{
    journal.record("HotKeys.unregisterHotKey({})", ref);
    if (const auto failure = unregistrationStatuses.find(ref); failure != unregistrationStatuses.end()) {
        return failure->second;
    }
    return registrations.erase(ref) == 1 ? osStatus::success : osStatus::parameterError;
}

std::optional<HotKeyId> SimulatedHotKeys::idOf(Combination combination) const
{
    const auto match =
        std::ranges::find_if(registrations, [&](const auto& each) { return each.second.combination == combination; });
    return match == registrations.end() ? std::nullopt : std::optional(match->second.id);
}

std::vector<SimulatedHotKeys::Combination> SimulatedHotKeys::registered() const
{
    std::vector<Combination> result;
    result.reserve(registrations.size());
    for (const auto& [ref, registration] : registrations) {
        result.push_back(registration.combination);
    }
    return result;
}

void SimulatedHotKeys::deliver(std::expected<HotKeyId, OsStatus> id)
{
    if (!handler) {
        return;
    }
    SimulatedHotKeyEvent event(journal, id);
    const auto current = handler; // it may replace itself
    const auto result = current(event);
    delivered.push_back({id, event.nextHandlerCalls(), result});
}

void SimulatedHotKeys::send(std::expected<HotKeyId, OsStatus> id)
{
    mainQueue.async([this, id] { deliver(id); });
}

void SimulatedHotKeys::behave()
{
    heldElsewhere.clear();
    unregistrationStatuses.clear();
    installationStatus = osStatus::success;
    registrationStatus = osStatus::success;
    losesReferences = false;
}

} // namespace quorvel
