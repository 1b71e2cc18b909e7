#pragma once

#import <AppKit/AppKit.h>

#include "platform/PaneButton.h"

namespace quorvel::macos {

// The key that presses the button, and its looks. A destructive one has no key: a press without thinking does no harm.
void giveRole(NSButton* button, ButtonRole role);

} // namespace quorvel::macos
