#include "platform/x11/keys/X11EventTaps.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/x11/Contains.h"
#include "platform/x11/keys/Keyboard.h"
#include "platform/x11/keys/KeyboardGrab.h"
#include "platform/x11/keys/X11EventTap.h"

namespace quorvel::x11 {

namespace {

constexpr KeyCode keyCodeCount = 256;

// Every combination of the modifiers that a person may hold while pressing a key of a tap.
constexpr std::uint32_t commandModifiers[] = {hotKeyModifiers::command, hotKeyModifiers::shift, hotKeyModifiers::option,
                                              hotKeyModifiers::control};

class X11TapEvent final : public TapEvent {
public:
    X11TapEvent(const KeyMapping& mapping, const KeyStroke& stroke, KeyCode keyCode)
        : mapping(mapping), stroke(stroke), code(keyCode)
    {}

    TapEventType type() const override { return TapEventType::keyDown; }
    KeyCode keyCode() const override { return code; }

    std::optional<KeyEvent> keyEvent() const override
    {
        return KeyEvent{code, mapping.characters(stroke.keycode, stroke.state), mapping.flags(stroke.state)};
    }

private:
    const KeyMapping& mapping;
    KeyStroke stroke;
    KeyCode code;
};

bool areAllKeys(const KeyCodeSet& keyCodes)
{
    const auto first = std::ranges::lower_bound(keyCodes, 0);
    return std::ranges::lower_bound(keyCodes, keyCodeCount) - first == keyCodeCount;
}

std::vector<KeyState> modifierCombinations(const KeyMapping& mapping)
{
    std::vector<KeyState> states;
    for (std::uint32_t chosen = 0; chosen < 1U << std::size(commandModifiers); ++chosen) {
        std::uint32_t modifiers = 0;
        for (std::size_t index = 0; index < std::size(commandModifiers); ++index) {
            modifiers |= (chosen >> index & 1U) != 0 ? commandModifiers[index] : 0;
        }
        for (const auto locks : mapping.lockCombinations()) {
            states.push_back(mapping.state(modifiers) | locks);
        }
    }
    return states;
}

KeyGrabs::Combinations difference(const KeyGrabs::Combinations& all, const KeyGrabs::Combinations& without)
{
    KeyGrabs::Combinations rest;
    std::ranges::set_difference(all, without, std::inserter(rest, rest.end()));
    return rest;
}

} // namespace

X11EventTaps::X11EventTaps(Keyboard& keyboard, KeyGrabs& grabs, KeyboardGrab& keyboardGrab, KeyEvents& events)
    : keyboard(keyboard),
      grabs(grabs),
      keyboardGrab(keyboardGrab),
      events(events),
      mappingSubscription(keyboard.observeMapping([this] { grabKeysOfInterest(Farewell::whenKeysAreUp); }))
{
    events.setTapHandler([this](const KeyStroke& stroke) { return handlePress(stroke); });
}

X11EventTaps::~X11EventTaps()
{
    events.setTapHandler(nullptr);
    grabs.giveBack(taken);
}

std::unique_ptr<EventTap> X11EventTaps::createTap(const EventTapDescription& description, EventTapCallback callback)
{
    auto tap = std::make_unique<X11EventTap>(*this, description, std::move(callback));
    taps.insert(taps.begin(), tap.get());
    return tap;
}

void X11EventTaps::remove(const X11EventTap& tap)
{
    std::erase(taps, &tap);
    grabKeysOfInterest(Farewell::atOnce);
}

KeyCodeSet X11EventTaps::keysOfInterest() const
{
    KeyCodeSet keyCodes;
    for (const auto* tap : taps) {
        keyCodes.insert(tap->activeKeys());
    }
    return keyCodes;
}

// False if some key cannot be had. `farewell` says how to part from the whole keyboard where it is not needed any more.
bool X11EventTaps::grabKeysOfInterest(Farewell farewell)
{
    const auto keyCodes = keysOfInterest();
    if (areAllKeys(keyCodes)) {
        return grabWholeKeyboard();
    }
    const bool isComplete = grabKeys(keyCodes);
    giveBackKeyboard(farewell);
    return isComplete;
}

bool X11EventTaps::grabWholeKeyboard()
{
    if (!keyboardGrab.take()) {
        return false;
    }
    grabs.giveBack(std::exchange(taken, {}));
    return true;
}

bool X11EventTaps::grabKeys(const KeyCodeSet& keyCodes)
{
    const auto wanted = combinationsOf(keyCodes);
    const auto refused = grabs.take(difference(wanted, taken), KeyGrabs::Mode::stopping);
    grabs.giveBack(difference(taken, wanted));
    taken = difference(wanted, refused);
    // Another program may well have a shortcut with one of the keys; the key by itself has to be ours.
    return std::ranges::none_of(refused, [](const KeyCombination& combination) { return combination.modifiers == 0; });
}

void X11EventTaps::giveBackKeyboard(Farewell farewell)
{
    switch (farewell) {
    case Farewell::whenKeysAreUp:
        keyboardGrab.release();
        break;
    case Farewell::soon:
        keyboardGrab.releaseSoon();
        break;
    case Farewell::atOnce:
        keyboardGrab.releaseAtOnce();
        break;
    }
}

KeyGrabs::Combinations X11EventTaps::combinationsOf(const KeyCodeSet& keyCodes) const
{
    KeyGrabs::Combinations combinations;
    if (keyCodes.empty()) {
        return combinations;
    }
    const KeyMapping& mapping = keyboard.mapping();
    const auto states = modifierCombinations(mapping);
    for (const auto keyCode : keyCodes) {
        for (const auto keycode : mapping.keycodes(keyCode)) {
            for (const auto state : states) {
                combinations.insert({keycode, state});
            }
        }
    }
    return combinations;
}

StrokeOutcome X11EventTaps::handlePress(const KeyStroke& stroke)
{
    const KeyMapping& mapping = keyboard.mapping();
    const auto keyCode = mapping.keyCode(stroke.keycode);
    if (!keyCode) {
        return StrokeOutcome::untaken;
    }
    const X11TapEvent event(mapping, stroke, *keyCode);
    for (const auto* tap : std::vector(taps)) {
        const bool isStillThere = contains(taps, tap);
        if (isStillThere && tap->wants(*keyCode) && tap->decide(event) == TapDecision::drop) {
            return StrokeOutcome::taken;
        }
    }
    return StrokeOutcome::untaken;
}

} // namespace quorvel::x11
