#include "platform/macos/preferences/ColorWell.h"

@implementation QuorvelColorWell

- (void)activate:(BOOL)exclusive
{
    [[NSColorPanel sharedColorPanel] setShowsAlpha:YES];
    [super activate:exclusive];
}

@end
