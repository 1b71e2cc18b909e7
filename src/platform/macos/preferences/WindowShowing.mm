#include "platform/macos/preferences/WindowShowing.h"

namespace quorvel::macos {

void showInTheMiddle(NSWindow* window)
{
    if ([window isMiniaturized]) {
        [window deminiaturize:nil];
    }
    [window center];
    [window makeKeyAndOrderFront:nil];
    [NSApp activateIgnoringOtherApps:YES];
}

} // namespace quorvel::macos
