#pragma once

#include <span>

#include "base/Keys.h"

namespace quorvel::x11 {

// A physical key under its two names.
struct KeyPosition {
    KeyCode keyCode;
    const char* xkbName; // as key maps call the key: "AC01" is the first letter key of the third row from below
};

// Every key that both worlds know, by its position on the keyboard. A key code may stand for several keys: PC keyboards
// have Print, Scroll Lock and Pause where others have F13, F14 and F15. Keys that control sound or players are missing
// on purpose: on a Mac they are no key-downs, and no mode should end because somebody turns the music down.
//
// X key codes are numbers that a server gives out as it likes; the names stay the same.
std::span<const KeyPosition> keyPositions();

} // namespace quorvel::x11
