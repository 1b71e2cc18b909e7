#include "platform/simulated/SimulatedKeyboard.h"

#include <utility>

#include "platform/simulated/SimulatedEventMonitors.h"
#include "platform/simulated/SimulatedEventTaps.h"
#include "platform/simulated/SimulatedHotKeys.h"
#include "platform/simulated/SimulatedKeyboardLayout.h"
#include "platform/simulated/SimulatedMainQueue.h"
#include "platform/simulated/SimulatedOverlayWindows.h"
#include "platform/simulated/SimulatedPreferencesUi.h"
#include "platform/simulated/SimulatedWindowServer.h"

namespace quorvel {

void SimulatedKeyboard::hold(KeyCode keyCode, std::uint64_t flags, std::optional<std::string> characters)
{
    auto text = characters ? *std::move(characters) : route.layout.typed(keyCode, flags);
    route.mainQueue.async([this, event = KeyEvent{keyCode, std::move(text), flags}] {
        held.insert_or_assign(event.keyCode, HeldKey{event, Owner::focus});
        const auto owner = press(event);
        if (const auto key = held.find(event.keyCode); key != held.end()) {
            key->second.owner = owner;
        }
    });
}

void SimulatedKeyboard::repeat(KeyCode keyCode)
{
    route.mainQueue.async([this, keyCode] {
        if (const auto key = held.find(keyCode); key != held.end()) {
            const auto [event, owner] = key->second;
            press(event, owner);
        }
    });
}

void SimulatedKeyboard::release(KeyCode keyCode)
{
    route.mainQueue.async([this, keyCode] {
        if (const auto key = held.extract(keyCode)) {
            route.eventTaps.offer(TapEventType::keyUp, key.mapped().event);
        }
    });
}

SimulatedKeyboard::Owner SimulatedKeyboard::press(const KeyEvent& event)
{
    if (const auto id =
            route.hotKeys.idOf({static_cast<std::uint32_t>(event.keyCode), hotKeyModifiersOf(event.flags)})) {
        route.hotKeys.deliver(*id);
        return Owner::hotKey;
    }
    if (route.eventTaps.offer(TapEventType::keyDown, event) == TapDecision::drop) {
        return Owner::eventTap;
    }
    deliverToFocus(event);
    return Owner::focus;
}

// Auto-repeat of a hot key is no further press. Where taps see only the keys of their interest, a key that one took
// stays taken until it is released, also when the tap has lost its interest meanwhile.
void SimulatedKeyboard::press(const KeyEvent& event, Owner firstOwner)
{
    if (firstOwner == Owner::hotKey || route.eventTaps.offer(TapEventType::keyDown, event) == TapDecision::drop) {
        return;
    }
    const bool decidesAnew = route.eventTaps.visibility == SimulatedEventTaps::Visibility::everyKey;
    if (firstOwner == Owner::focus || decidesAnew) {
        deliverToFocus(event);
    }
}

void SimulatedKeyboard::deliverToFocus(const KeyEvent& event)
{
    const auto process = route.windowServer.frontmostProcess();
    if (process == SimulatedWindowServer::ownProcess) {
        const auto panel = route.overlayWindows.keyPanel();
        auto handling = EventHandling::pass;
        if (panel || route.preferencesUi.isWindowVisible()) {
            handling = route.eventMonitors.keyDown(event);
        }
        if (panel && handling == EventHandling::pass) {
            panel->onKeyDown(event);
        }
    } else if (auto* application = process ? route.windowServer.application(*process) : nullptr) {
        route.windowServer.receiveKey(*application, event);
    }
}

} // namespace quorvel
