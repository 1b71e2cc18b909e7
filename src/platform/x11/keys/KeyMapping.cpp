#include "platform/x11/keys/KeyMapping.h"

#include <algorithm>
#include <utility>

#include <xkbcommon/xkbcommon-keysyms.h>

#include "platform/x11/keys/KeyTable.h"

namespace quorvel::x11 {

namespace {

constexpr unsigned modifierCount = 8;
constexpr KeyState modifierBits = (1U << modifierCount) - 1;
constexpr unsigned layoutShift = 13;
constexpr unsigned layoutMask = 3;

xkb_keysym_t baseKeysym(xkb_keymap* keymap, xcb_keycode_t keycode)
{
    const xkb_keysym_t* keysyms = nullptr;
    const int count = xkb_keymap_key_get_syms_by_level(keymap, keycode, 0, 0, &keysyms);
    return count > 0 ? keysyms[0] : XKB_KEY_NoSymbol;
}

// A modifier's lowest bit: with two, either alone would do, and a grab has to name one.
KeyState lowestBit(KeyState bits)
{
    return static_cast<KeyState>(bits & -bits);
}

} // namespace

KeyMapping::KeyMapping(XkbKeymap map) : keymap(std::move(map)), scratch(xkb_state_new(keymap.get()))
{
    findKeys();
    findModifiers();
}

void KeyMapping::findKeys()
{
    for (const auto& [keyCode, name] : keyPositions()) {
        const xkb_keycode_t keycode = xkb_keymap_key_by_name(keymap.get(), name);
        if (keycode < keyCodes.size() && !keyCodes[keycode]) { // an invalid code is a very high one
            keycodesByKey[keyCode].push_back(static_cast<xcb_keycode_t>(keycode));
            keyCodes[keycode] = keyCode;
        }
    }
}

void KeyMapping::findModifiers()
{
    const xkb_keycode_t last = std::min<xkb_keycode_t>(xkb_keymap_max_keycode(keymap.get()), keyCodes.size() - 1);
    for (xkb_keycode_t code = xkb_keymap_min_keycode(keymap.get()); code <= last; ++code) {
        const auto keycode = static_cast<xcb_keycode_t>(code);
        switch (baseKeysym(keymap.get(), keycode)) {
        case XKB_KEY_Super_L:
        case XKB_KEY_Super_R:
            commandBit |= bitsSetBy(keycode);
            break;
        case XKB_KEY_Alt_L:
        case XKB_KEY_Alt_R:
            optionBit |= bitsSetBy(keycode);
            break;
        case XKB_KEY_Num_Lock:
            numLockBit |= bitsSetBy(keycode);
            break;
        default:
            break;
        }
    }
    commandBit = commandBit != 0 ? lowestBit(commandBit) : KeyState{XCB_MOD_MASK_4};
    optionBit = optionBit != 0 ? lowestBit(optionBit) : KeyState{XCB_MOD_MASK_1};
    numLockBit = lowestBit(numLockBit);
}

KeyState KeyMapping::bitsSetBy(xcb_keycode_t keycode) const
{
    xkb_state* const state = scratch.get();
    xkb_state_update_mask(state, 0, 0, 0, 0, 0, 0);
    xkb_state_update_key(state, keycode, XKB_KEY_DOWN);
    const auto bits = static_cast<KeyState>(xkb_state_serialize_mods(state, XKB_STATE_MODS_EFFECTIVE) & modifierBits);
    xkb_state_update_key(state, keycode, XKB_KEY_UP);
    return bits;
}

std::span<const xcb_keycode_t> KeyMapping::keycodes(KeyCode keyCode) const
{
    const auto found = keycodesByKey.find(keyCode);
    return found != keycodesByKey.end() ? std::span(found->second) : std::span<const xcb_keycode_t>();
}

std::optional<KeyCode> KeyMapping::keyCode(xcb_keycode_t keycode) const
{
    return keyCodes[keycode];
}

bool KeyMapping::isModifier(xcb_keycode_t keycode) const
{
    const xkb_keysym_t keysym = baseKeysym(keymap.get(), keycode);
    return (keysym >= XKB_KEY_Shift_L && keysym <= XKB_KEY_Hyper_R) ||
           (keysym >= XKB_KEY_ISO_Lock && keysym <= XKB_KEY_ISO_Level5_Lock) || keysym == XKB_KEY_Mode_switch ||
           keysym == XKB_KEY_Num_Lock;
}

std::string KeyMapping::characters(xcb_keycode_t keycode, KeyState state) const
{
    const KeyState ignored = controlBit | optionBit | commandBit;
    const auto modifiers = static_cast<xkb_mod_mask_t>(state & modifierBits & ~ignored);
    const xkb_layout_index_t layout = (state >> layoutShift) & layoutMask;
    xkb_state_update_mask(scratch.get(), modifiers, 0, 0, 0, 0, layout);
    const int size = xkb_state_key_get_utf8(scratch.get(), keycode, nullptr, 0);
    if (size <= 0) {
        return {};
    }
    std::string characters(static_cast<std::size_t>(size), '\0');
    xkb_state_key_get_utf8(scratch.get(), keycode, characters.data(), characters.size() + 1);
    return characters;
}

std::uint64_t KeyMapping::flags(KeyState state) const
{
    const std::pair<KeyState, std::uint64_t> pairs[] = {
        {shiftBit, eventFlags::shift},
        {controlBit, eventFlags::control},
        {optionBit, eventFlags::option},
        {commandBit, eventFlags::command},
    };
    std::uint64_t flags = 0;
    for (const auto& [bit, flag] : pairs) {
        flags |= (state & bit) != 0 ? flag : 0;
    }
    return flags;
}

KeyState KeyMapping::state(std::uint32_t modifiers) const
{
    const std::pair<std::uint32_t, KeyState> pairs[] = {
        {hotKeyModifiers::command, commandBit},
        {hotKeyModifiers::shift, shiftBit},
        {hotKeyModifiers::option, optionBit},
        {hotKeyModifiers::control, controlBit},
    };
    KeyState state = 0;
    for (const auto& [modifier, bit] : pairs) {
        state |= (modifiers & modifier) != 0 ? bit : 0;
    }
    return state;
}

KeyState KeyMapping::layoutState(unsigned layout)
{
    return static_cast<KeyState>(layout << layoutShift);
}

std::vector<KeyState> KeyMapping::lockCombinations() const
{
    std::vector<KeyState> combinations{0, capsLockBit};
    if (numLockBit != 0 && numLockBit != capsLockBit) {
        combinations.push_back(numLockBit);
        combinations.push_back(capsLockBit | numLockBit);
    }
    return combinations;
}

} // namespace quorvel::x11
