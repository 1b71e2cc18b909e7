#include "platform/macos/overlays/KeyPanel.h"

#include "platform/macos/keys/KeyEvents.h"

@implementation QuorvelKeyPanel

- (void)setOnKeyDown:(std::function<void(const quorvel::KeyEvent&)>)newOnKeyDown
{
    onKeyDown = std::move(newOnKeyDown);
}

- (BOOL)canBecomeKeyWindow
{
    return YES;
}

- (void)keyDown:(NSEvent*)event
{
    onKeyDown(quorvel::macos::keyEvent(event));
}

// Keys with Command come this way, before any menu.
- (BOOL)performKeyEquivalent:(NSEvent*)event
{
    [self keyDown:event];
    return YES;
}

@end
