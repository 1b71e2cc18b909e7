#include "platform/simulated/SimulatedEventTaps.h"

#include <utility>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedMainQueue.h"
#include "platform/simulated/SimulatedPermissions.h"
#include "platform/simulated/SimulatedTapEvent.h"

namespace quorvel {

namespace {

std::uint64_t maskOf(TapEventType type)
{
    switch (type) {
    case TapEventType::keyDown:
        return keyDownEventMask;
    case TapEventType::keyUp:
        return keyDownEventMask << 1U;
    case TapEventType::flagsChanged:
        return keyDownEventMask << 2U;
    default:
        return 0;
    }
}

bool tellsOfDisabling(TapEventType type)
{
    return type == TapEventType::disabledByTimeout || type == TapEventType::disabledByUserInput;
}

} // namespace

SimulatedEventTaps::SimulatedEventTaps(Journal& journal, SimulatedMainQueue& mainQueue,
                                       SimulatedPermissions& permissions)
    : journal(journal), mainQueue(mainQueue), permissions(permissions)
{}

SimulatedEventTaps::~SimulatedEventTaps() = default;

std::unique_ptr<EventTap> SimulatedEventTaps::createTap(const EventTapDescription& description,
                                                        EventTapCallback callback)
{
    journal.record("EventTaps.createTap({})", description.eventMask);
    const bool isAllowed =
        permissions.isGiven(Permission::accessibility) && permissions.isGiven(Permission::inputMonitoring);
    if (!isAllowed || tapsRefused) {
        return nullptr;
    }
    auto registration = std::make_shared<Registration>();
    registration->description = description;
    registration->callback = std::move(callback);
    std::erase_if(registrations, [](const auto& each) { return each.expired(); });
    registrations.push_back(registration);
    return std::make_unique<SimulatedEventTap>(journal, *this, std::move(registration));
}

std::vector<std::shared_ptr<const SimulatedEventTap::Registration>> SimulatedEventTaps::taps() const
{
    const auto all = current();
    return {all.begin(), all.end()};
}

TapDecision SimulatedEventTaps::offer(TapEventType type, const KeyEvent& event)
{
    for (const auto& tap : current()) {
        if (sees(*tap, type, event.keyCode) && ask(*tap, type, event) == TapDecision::drop) {
            return TapDecision::drop;
        }
    }
    return TapDecision::pass;
}

void SimulatedEventTaps::send(TapEventType type, KeyCode keyCode)
{
    mainQueue.async([this, type, keyCode] {
        for (const auto& tap : current()) {
            if (tellsOfDisabling(type)) {
                tap->isEnabled = false;
            }
            ask(*tap, type, KeyEvent{keyCode, {}, 0});
        }
    });
}

void SimulatedEventTaps::behave()
{
    tapsRefused = false;
    sourcesRefused = false;
    keysRefused = false;
    conversionsRefused = false;
}

std::vector<std::shared_ptr<SimulatedEventTap::Registration>> SimulatedEventTaps::current() const
{
    std::vector<std::shared_ptr<Registration>> result;
    for (const auto& each : registrations) {
        if (auto tap = each.lock()) {
            result.insert(result.begin(), std::move(tap));
        }
    }
    return result;
}

bool SimulatedEventTaps::sees(const Registration& tap, TapEventType type, KeyCode keyCode) const
{
    const bool isServed = tap.isEnabled && tap.isInRunLoop && (tap.description.eventMask & maskOf(type)) != 0;
    return isServed && (visibility == Visibility::everyKey || tap.keysOfInterest.contains(keyCode));
}

TapDecision SimulatedEventTaps::ask(const Registration& tap, TapEventType type, const KeyEvent& event)
{
    const SimulatedTapEvent shown(type, event.keyCode, conversionsRefused ? std::nullopt : std::optional(event));
    const auto decision = tap.callback(shown);
    made.push_back({type, event.keyCode, decision});
    return decision;
}

} // namespace quorvel
