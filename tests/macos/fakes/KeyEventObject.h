#pragma once

#import <AppKit/AppKit.h>

#include "base/Keys.h"

namespace quorvel::fakes {

// A key-down as the system hands it to a program: with the flags that belong to the key itself, and with the private
// characters of arrows and function keys.
NSEvent* keyDown(const KeyEvent& key);

} // namespace quorvel::fakes
