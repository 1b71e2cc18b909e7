#include "platform/x11/keys/X11KeyboardLayout.h"

#include "platform/x11/keys/Keyboard.h"

namespace quorvel::x11 {

std::string X11KeyboardLayout::characters(KeyCode keyCode)
{
    const KeyMapping& mapping = keyboard.mapping();
    const auto keycodes = mapping.keycodes(keyCode);
    return keycodes.empty() ? std::string() : mapping.characters(keycodes.front(), keyboard.layoutState());
}

} // namespace quorvel::x11
