#pragma once

#import <AppKit/AppKit.h>

#include "base/Keys.h"

namespace quorvel::macos {

// A key-down of the system as the program knows it: without the flags that belong to the key itself, which an arrow, a
// function key and a key of the number pad bring along though nobody holds a modifier.
KeyEvent keyEvent(NSEvent* event);

} // namespace quorvel::macos
