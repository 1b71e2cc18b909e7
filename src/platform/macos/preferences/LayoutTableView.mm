#include "platform/macos/preferences/LayoutTableView.h"

#include <utility>

@implementation QuorvelLayoutTableView

- (void)setKeyDown:(std::function<bool(NSEvent*)>)newKeyDown
{
    keyDown = std::move(newKeyDown);
}

- (void)keyDown:(NSEvent*)event
{
    if (!keyDown || !keyDown(event)) {
        [super keyDown:event];
    }
}

@end
