#pragma once

#include <string>
#include <string_view>

#include "base/Keys.h"

namespace quorvel {

// What the modifier keys are called.
struct ModifierNames {
    std::string_view command;
    std::string_view shift;
    std::string_view option;
    std::string_view control;
};

class KeyboardLayout {
public:
    KeyboardLayout() = default;
    KeyboardLayout(const KeyboardLayout&) = delete;
    KeyboardLayout& operator=(const KeyboardLayout&) = delete;
    virtual ~KeyboardLayout() = default;

    // What the key types in the current layout without modifiers; empty for a key that types nothing.
    virtual std::string characters(KeyCode keyCode) = 0;

    // As a person on this kind of desktop knows them.
    virtual ModifierNames modifierNames() const = 0;
};

} // namespace quorvel
