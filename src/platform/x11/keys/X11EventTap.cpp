#include "platform/x11/keys/X11EventTap.h"

#include <utility>

#include "platform/x11/keys/X11EventTaps.h"

namespace quorvel::x11 {

X11EventTap::X11EventTap(X11EventTaps& owner, const EventTapDescription& description, EventTapCallback callback)
    : owner(owner), description(description), callback(std::move(callback))
{}

X11EventTap::~X11EventTap()
{
    owner.remove(*this);
}

bool X11EventTap::createRunLoopSource()
{
    return true; // the connection's source serves the taps as well
}

void X11EventTap::addSourceToRunLoop()
{
    setActivity(true, isEnabled);
}

void X11EventTap::removeSourceFromRunLoop()
{
    setActivity(false, isEnabled);
}

void X11EventTap::setEnabled(bool enabled)
{
    setActivity(isInRunLoop, enabled);
}

void X11EventTap::setActivity(bool inRunLoop, bool enabled)
{
    isInRunLoop = inRunLoop;
    isEnabled = enabled;
    owner.grabKeysOfInterest(X11EventTaps::Farewell::atOnce);
}

bool X11EventTap::setKeysOfInterest(const KeyCodeSet& newKeyCodes)
{
    keyCodes = newKeyCodes;
    // Whoever clears the keys may be about to set others; until then no key should slip through.
    const auto farewell = keyCodes.empty() ? X11EventTaps::Farewell::soon : X11EventTaps::Farewell::whenKeysAreUp;
    if (!isActive() || owner.grabKeysOfInterest(farewell)) {
        return true;
    }
    keyCodes.clear();
    owner.grabKeysOfInterest(X11EventTaps::Farewell::atOnce);
    return false;
}

bool X11EventTap::wants(KeyCode keyCode) const
{
    return isActive() && (description.eventMask & keyDownEventMask) != 0 && keyCodes.contains(keyCode);
}

KeyCodeSet X11EventTap::activeKeys() const
{
    return isActive() ? keyCodes : KeyCodeSet();
}

TapDecision X11EventTap::decide(const TapEvent& event) const
{
    return callback(event);
}

} // namespace quorvel::x11
