#pragma once

#include "platform/KeyboardLayout.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

class FaultyKeyboardLayout final : public KeyboardLayout {
public:
    FaultyKeyboardLayout(KeyboardLayout& real, PortFaults& faults) : real(real), faults(faults) {}

    std::string characters(KeyCode keyCode) override
    {
        return faults.attempt("KeyboardLayout.characters", [&] { return real.characters(keyCode); }, std::string());
    }

    ModifierNames modifierNames() const override { return real.modifierNames(); }

private:
    KeyboardLayout& real;
    PortFaults& faults;
};

} // namespace quorvel
