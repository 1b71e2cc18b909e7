#pragma once

#import <AppKit/AppKit.h>

#include "platform/macos/Retained.h"

namespace quorvel::macos {

// The application's main menu. An application of the menu bar never shows it, but its windows take the usual keys from
// it: to close, to quit, and to edit text.
Retained<NSMenu*> mainMenu();

} // namespace quorvel::macos
