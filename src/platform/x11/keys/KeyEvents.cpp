#include "platform/x11/keys/KeyEvents.h"

#include "platform/x11/Connection.h"
#include "platform/x11/keys/Keyboard.h"

namespace quorvel::x11 {

KeyEvents::KeyEvents(Connection& connection, const Keyboard& keyboard) : connection(connection), keyboard(keyboard)
{
    subscriptions.push_back(connection.addHandler<xcb_key_press_event_t>(
        XCB_KEY_PRESS, [this](const xcb_key_press_event_t& event) { handlePress(event); }));
    subscriptions.push_back(connection.addHandler<xcb_key_release_event_t>(
        XCB_KEY_RELEASE, [this](const xcb_key_release_event_t& event) { handleRelease(event); }));
}

std::set<xcb_keycode_t> KeyEvents::heldKeys() const
{
    std::set<xcb_keycode_t> keys;
    for (const auto& [keycode, time] : held) {
        keys.insert(keycode);
    }
    return keys;
}

void KeyEvents::handlePress(const xcb_key_press_event_t& event)
{
    if (event.event != connection.root()) {
        return; // typed into a window of this program
    }
    latest = event.time;
    const bool isModifier = keyboard.mapping().isModifier(event.detail);
    const KeyStroke stroke{isModifier ? KeyStroke::Kind::press : notePress(event), event.detail, event.state,
                           event.time};
    auto outcome = StrokeOutcome::untaken;
    if (!isModifier && hotKeyHandler) {
        outcome = hotKeyHandler(stroke);
    }
    if (!isModifier && outcome == StrokeOutcome::untaken && tapHandler) {
        outcome = tapHandler(stroke);
    }
    if (follower) {
        follower(stroke, outcome);
    }
}

void KeyEvents::handleRelease(const xcb_key_release_event_t& event)
{
    if (event.event != connection.root()) {
        return;
    }
    latest = event.time;
    held.erase(event.detail);
    if (follower) {
        follower({KeyStroke::Kind::release, event.detail, event.state, event.time}, StrokeOutcome::untaken);
    }
}

KeyStroke::Kind KeyEvents::notePress(const xcb_key_press_event_t& event)
{
    // No keyboard waits this long before it repeats; a release got lost then, and the key went down anew.
    constexpr xcb_timestamp_t longestPause = 3000; // ms
    const auto [key, isNew] = held.try_emplace(event.detail, event.time);
    const bool isRepeat = !isNew && event.time - key->second < longestPause;
    key->second = event.time;
    return isRepeat ? KeyStroke::Kind::autoRepeat : KeyStroke::Kind::press;
}

} // namespace quorvel::x11
