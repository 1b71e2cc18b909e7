#pragma once

#include <cstdint>

#include "platform/x11/keys/KeyGrabs.h"

namespace quorvel::x11 {

// What a hot key is grabbed as: each key that has the key code, with the modifiers (a mask of hotKeyModifiers) and
// every state of the locks. Empty where this keyboard has no such key.
KeyGrabs::Combinations hotKeyCombinations(const KeyMapping& mapping, KeyCode keyCode, std::uint32_t modifiers);

} // namespace quorvel::x11
