#include "platform/macos/preferences/ShellWindow.h"

#include <utility>

@implementation QuorvelShellWindow

- (void)setEscape:(std::function<void()>)newEscape
{
    escape = std::move(newEscape);
}

- (void)cancelOperation:(id)sender
{
    if (escape) {
        escape();
    }
}

@end
