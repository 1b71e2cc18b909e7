#pragma once

#include <cstdint>

#include "base/KeyCodeSet.h"
#include "base/Keys.h"

namespace quorvel {

class Settings;

// The keys of the move/resize mode. Two of them may be the same.
struct MoveResizeKeys {
    KeyCode moveLeft = 0;
    KeyCode moveRight = 0;
    KeyCode moveUp = 0;
    KeyCode moveDown = 0;
    KeyCode cycleWindows = 0;
    KeyCode minimize = 0;
    KeyCode exitMode = 0;
    std::uint64_t resizeModifierFlags = 0; // eventFlags

    KeyCodeSet keyCodes() const;

    // True when the flags of a key event are the resize modifiers and no others.
    bool isResizing(std::uint64_t flags) const;

    bool operator==(const MoveResizeKeys&) const = default;
};

// As modeKeyCode() and resizeModifierFlags() read them.
MoveResizeKeys moveResizeKeys(const Settings& settings);

} // namespace quorvel
