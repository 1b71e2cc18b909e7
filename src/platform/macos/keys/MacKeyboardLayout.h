#pragma once

#include "platform/KeyboardLayout.h"

namespace quorvel::macos {

class MacKeyboardLayout final : public KeyboardLayout {
public:
    std::string characters(KeyCode keyCode) override;
    ModifierNames modifierNames() const override;
};

} // namespace quorvel::macos
