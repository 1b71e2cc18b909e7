#include "platform/x11/keys/X11HotKeys.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/x11/keys/HotKeyCombinations.h"
#include "platform/x11/keys/Keyboard.h"

namespace quorvel::x11 {

namespace {

constexpr std::uint32_t knownModifiers =
    hotKeyModifiers::command | hotKeyModifiers::shift | hotKeyModifiers::option | hotKeyModifiers::control;

class X11HotKeyEvent final : public HotKeyEvent {
public:
    explicit X11HotKeyEvent(HotKeyId id) : id(id) {}

    std::expected<HotKeyId, OsStatus> hotKeyId() const override { return id; }
    OsStatus callNextHandler() override { return osStatus::eventNotHandled; }

private:
    HotKeyId id;
};

} // namespace

X11HotKeys::X11HotKeys(Keyboard& keyboard, KeyGrabs& grabs, KeyEvents& events)
    : keyboard(keyboard),
      grabs(grabs),
      events(events),
      mappingSubscription(keyboard.observeMapping([this] { grabAnew(); }))
{
    events.setHotKeyHandler([this](const KeyStroke& stroke) { return handlePress(stroke); });
}

X11HotKeys::~X11HotKeys()
{
    events.setHotKeyHandler(nullptr);
    for (const auto& [ref, hotKey] : hotKeys) {
        grabs.giveBack(hotKey.combinations);
    }
}

OsStatus X11HotKeys::installHandler(HotKeyHandler newHandler)
{
    handler = std::move(newHandler);
    return osStatus::success;
}

void X11HotKeys::removeHandler()
{
    handler = nullptr;
}

HotKeyRegistration X11HotKeys::registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers, HotKeyId id)
{
    if ((modifiers & ~knownModifiers) != 0) {
        return {.status = osStatus::parameterError};
    }
    const auto key = static_cast<KeyCode>(keyCode);
    const auto combinations = hotKeyCombinations(keyboard.mapping(), key, modifiers);
    if (combinations.empty()) {
        return {.status = osStatus::hotKeyInvalid}; // this keyboard has no such key
    }
    if (find(key, modifiers) != nullptr) {
        return {.status = osStatus::hotKeyExists};
    }
    const auto taken = takeWhatIsFree(combinations);
    if (taken.size() < combinations.size()) {
        grabs.giveBack(taken);
        return {.status = osStatus::hotKeyExists};
    }
    const HotKeyRef ref = nextRef++;
    hotKeys.emplace(ref, HotKey{key, modifiers, id, combinations});
    heldChanged.emit();
    return {.ref = ref};
}

OsStatus X11HotKeys::unregisterHotKey(HotKeyRef ref)
{
    const auto found = hotKeys.find(ref);
    if (found == hotKeys.end()) {
        return osStatus::hotKeyInvalid;
    }
    grabs.giveBack(found->second.combinations);
    hotKeys.erase(found);
    heldChanged.emit();
    return osStatus::success;
}

std::vector<HeldHotKey> X11HotKeys::held() const
{
    std::vector<HeldHotKey> result;
    for (const auto& [ref, hotKey] : hotKeys) {
        const auto wanted = hotKeyCombinations(keyboard.mapping(), hotKey.keyCode, hotKey.modifiers);
        if (!wanted.empty() && hotKey.combinations == wanted) {
            result.push_back({static_cast<std::uint32_t>(hotKey.keyCode), hotKey.modifiers});
        }
    }
    return result;
}

KeyGrabs::Combinations X11HotKeys::takeWhatIsFree(const KeyGrabs::Combinations& combinations)
{
    const auto refused = grabs.take(combinations, KeyGrabs::Mode::swallowing);
    KeyGrabs::Combinations taken;
    std::ranges::set_difference(combinations, refused, std::inserter(taken, taken.end()));
    return taken;
}

const X11HotKeys::HotKey* X11HotKeys::find(KeyCode keyCode, std::uint32_t modifiers) const
{
    const auto found = std::ranges::find_if(hotKeys, [&](const auto& entry) {
        return entry.second.keyCode == keyCode && entry.second.modifiers == modifiers;
    });
    return found != hotKeys.end() ? &found->second : nullptr;
}

StrokeOutcome X11HotKeys::handlePress(const KeyStroke& stroke)
{
    const KeyMapping& mapping = keyboard.mapping();
    const auto keyCode = mapping.keyCode(stroke.keycode);
    const HotKey* const hotKey = keyCode ? find(*keyCode, hotKeyModifiersOf(mapping.flags(stroke.state))) : nullptr;
    if (hotKey == nullptr) {
        return StrokeOutcome::untaken;
    }
    if (handler) {
        const auto called = handler; // it may remove itself
        X11HotKeyEvent event(hotKey->id);
        called(event);
    }
    return StrokeOutcome::taken;
}

// Keys and modifiers may lie elsewhere in the new map. A hot key that another program holds there comes back with a
// later change of the map.
void X11HotKeys::grabAnew()
{
    for (auto& [ref, hotKey] : hotKeys) {
        auto combinations = hotKeyCombinations(keyboard.mapping(), hotKey.keyCode, hotKey.modifiers);
        if (combinations != hotKey.combinations) {
            const auto former = std::exchange(hotKey.combinations, takeWhatIsFree(combinations));
            grabs.giveBack(former);
        }
    }
    heldChanged.emit();
}

} // namespace quorvel::x11
