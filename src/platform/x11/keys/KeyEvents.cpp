#include "platform/x11/keys/KeyEvents.h"

#include "platform/x11/Connection.h"
#include "platform/x11/keys/Keyboard.h"

namespace quorvel::x11 {

namespace {

// Presses and releases have the same layout.
KeyStroke strokeOf(KeyStroke::Kind kind, const xcb_key_press_event_t& event)
{
    const auto request = reinterpret_cast<const xcb_generic_event_t&>(event).full_sequence;
    return {kind, event.detail, event.state, event.time, request};
}

} // namespace

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
    for (const auto& [keycode, key] : held) {
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
    KeyStroke stroke = strokeOf(KeyStroke::Kind::press, event);
    auto outcome = StrokeOutcome::untaken;
    if (!keyboard.mapping().isModifier(event.detail)) {
        stroke.kind = notePress(event);
        outcome = lead(stroke);
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
        follower(strokeOf(KeyStroke::Kind::release, event), StrokeOutcome::untaken);
    }
}

StrokeOutcome KeyEvents::lead(const KeyStroke& stroke)
{
    if (offerToHotKeys(stroke) == StrokeOutcome::taken) {
        return StrokeOutcome::taken;
    }
    return tapHandler ? tapHandler(stroke) : StrokeOutcome::untaken;
}

StrokeOutcome KeyEvents::offerToHotKeys(const KeyStroke& stroke)
{
    if (stroke.kind == KeyStroke::Kind::autoRepeat) {
        return held[stroke.keycode].isHotKey ? StrokeOutcome::taken : StrokeOutcome::untaken;
    }
    const auto outcome = hotKeyHandler ? hotKeyHandler(stroke) : StrokeOutcome::untaken;
    if (const auto key = held.find(stroke.keycode); key != held.end()) { // the handler may have let go of all keys
        key->second.isHotKey = outcome == StrokeOutcome::taken;
    }
    return outcome;
}

KeyStroke::Kind KeyEvents::notePress(const xcb_key_press_event_t& event)
{
    // No keyboard waits this long before it repeats; a release got lost then, and the key went down anew.
    constexpr xcb_timestamp_t longestPause = 3000; // ms
    const auto [entry, isNew] = held.try_emplace(event.detail);
    HeldKey& key = entry->second;
    const bool isRepeat = !isNew && event.time - key.time < longestPause;
    key.time = event.time;
    return isRepeat ? KeyStroke::Kind::autoRepeat : KeyStroke::Kind::press;
}

} // namespace quorvel::x11
