#pragma once

#include <string>

#include "base/Keys.h"

namespace quorvel {

class KeyboardLayout {
public:
    KeyboardLayout() = default;
    KeyboardLayout(const KeyboardLayout&) = delete;
    KeyboardLayout& operator=(const KeyboardLayout&) = delete;
    virtual ~KeyboardLayout() = default;

    // What the key types in the current layout without modifiers; empty for a key that types nothing.
    virtual std::string characters(KeyCode keyCode) = 0;
};

} // namespace quorvel
