#include "system/CapturedKey.h"

#include "base/Utf8.h"

namespace quorvel {

CapturedKey capturedKeyFrom(const KeyEvent& event)
{
    return {
        .keyCode = event.keyCode,
        .character = event.characters.empty() ? "?" : firstCharacter(event.characters),
        .flags = event.flags & eventFlags::deviceIndependentMask,
    };
}

} // namespace quorvel
