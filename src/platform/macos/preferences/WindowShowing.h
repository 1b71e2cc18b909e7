#pragma once

#import <AppKit/AppKit.h>

namespace quorvel::macos {

// In the middle, in front, with the keyboard, and this program as the active one.
void showInTheMiddle(NSWindow* window);

} // namespace quorvel::macos
