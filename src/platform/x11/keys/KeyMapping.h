#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include <xcb/xcb.h>

#include "base/Keys.h"
#include "platform/x11/keys/XkbObjects.h"

namespace quorvel::x11 {

// A state as X events carry it: eight modifier bits, the held mouse buttons, and the number of the layout.
using KeyState = std::uint16_t;

// What one key map makes of keys and modifiers. Command is Super, Option is Alt, wherever the map has put them.
class KeyMapping {
public:
    explicit KeyMapping(XkbKeymap keymap);

    // The server's codes of a key; none where this keyboard lacks it.
    std::span<const xcb_keycode_t> keycodes(KeyCode keyCode) const;

    // Nothing for keys without a key code, such as those of media players.
    std::optional<KeyCode> keyCode(xcb_keycode_t keycode) const;

    // Whether the key only holds or locks modifiers or changes the layout. Such keys are no key-downs.
    bool isModifier(xcb_keycode_t keycode) const;

    // What the key types with that state. Command, Option and Control do not count: they make commands, not characters.
    std::string characters(xcb_keycode_t keycode, KeyState state) const;

    // The modifiers that a person holds, as eventFlags. Num Lock, further levels and the layout leave no trace.
    std::uint64_t flags(KeyState state) const;

    // The bits of a mask of hotKeyModifiers.
    KeyState state(std::uint32_t modifiers) const;

    // The state without modifiers in the layout of that number.
    static KeyState layoutState(unsigned layout);

    // Every combination of the locks; the locks that the map lacks take no part.
    std::vector<KeyState> lockCombinations() const;

private:
    static constexpr KeyState shiftBit = XCB_MOD_MASK_SHIFT;
    static constexpr KeyState capsLockBit = XCB_MOD_MASK_LOCK;
    static constexpr KeyState controlBit = XCB_MOD_MASK_CONTROL;

    void findKeys();
    void findModifiers();
    KeyState bitsSetBy(xcb_keycode_t keycode) const;

    XkbKeymap keymap;
    XkbState scratch; // set anew for every question
    KeyState optionBit = 0;
    KeyState commandBit = 0;
    KeyState numLockBit = 0;
    std::map<KeyCode, std::vector<xcb_keycode_t>> keycodesByKey;
    std::array<std::optional<KeyCode>, 256> keyCodes;
};

} // namespace quorvel::x11
