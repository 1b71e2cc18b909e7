#include "platform/simulated/SimulatedEventTap.h"

#include <utility>

#include <fmt/ranges.h>

#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedEventTaps.h"

namespace quorvel {

SimulatedEventTap::SimulatedEventTap(Journal& journal, const SimulatedEventTaps& eventTaps,
                                     std::shared_ptr<Registration> registration)
    : journal(journal), eventTaps(eventTaps), registration(std::move(registration))
{}

SimulatedEventTap::~SimulatedEventTap()
{
    journal.record("EventTap.destroy()");
}

bool SimulatedEventTap::createRunLoopSource()
{
    journal.record("EventTap.createRunLoopSource()");
    registration->hasSource = !eventTaps.refusesSources();
    return registration->hasSource;
}

void SimulatedEventTap::addSourceToRunLoop()
{
    journal.record("EventTap.addSourceToRunLoop()");
    registration->isInRunLoop = registration->hasSource;
}

void SimulatedEventTap::removeSourceFromRunLoop()
{
    journal.record("EventTap.removeSourceFromRunLoop()");
    registration->isInRunLoop = false;
}

void SimulatedEventTap::setEnabled(bool enabled)
{
    journal.record("EventTap.setEnabled({})", enabled);
    registration->isEnabled = enabled;
}

bool SimulatedEventTap::setKeysOfInterest(const KeyCodeSet& keyCodes)
{
    journal.record("EventTap.setKeysOfInterest({})", fmt::join(keyCodes, ", "));
    const bool succeeds = keyCodes.empty() || !eventTaps.refusesKeys();
    registration->keysOfInterest = succeeds ? keyCodes : KeyCodeSet{};
    return succeeds;
}

} // namespace quorvel
