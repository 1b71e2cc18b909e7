#pragma once

#include "platform/KeyboardLayout.h"

namespace quorvel::x11 {

class Keyboard;

class X11KeyboardLayout final : public KeyboardLayout {
public:
    explicit X11KeyboardLayout(const Keyboard& keyboard) : keyboard(keyboard) {}

    std::string characters(KeyCode keyCode) override;
    ModifierNames modifierNames() const override { return {"Super", "Shift", "Alt", "Ctrl"}; }

private:
    const Keyboard& keyboard;
};

} // namespace quorvel::x11
