#include "platform/x11/keys/HotKeyCombinations.h"

namespace quorvel::x11 {

KeyGrabs::Combinations hotKeyCombinations(const KeyMapping& mapping, KeyCode keyCode, std::uint32_t modifiers)
{
    KeyGrabs::Combinations combinations;
    for (const auto keycode : mapping.keycodes(keyCode)) {
        for (const auto locks : mapping.lockCombinations()) {
            combinations.insert({keycode, static_cast<KeyState>(mapping.state(modifiers) | locks)});
        }
    }
    return combinations;
}

} // namespace quorvel::x11
