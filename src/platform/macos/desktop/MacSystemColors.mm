#include "platform/macos/desktop/MacSystemColors.h"

#import <AppKit/AppKit.h>

#include "platform/macos/Colors.h"

namespace quorvel::macos {

namespace {

// The components of such a colour are those of the appearance in which they are asked for.
Color current(NSColor* dynamicColor)
{
    @autoreleasepool {
        __block Color result;
        [[NSApp effectiveAppearance] performAsCurrentDrawingAppearance:^{
          result = color(dynamicColor);
        }];
        return result;
    }
}

} // namespace

Color MacSystemColors::accent() const
{
    return current([NSColor controlAccentColor]);
}

Color MacSystemColors::blue() const
{
    return current([NSColor systemBlueColor]);
}

Color MacSystemColors::green() const
{
    return current([NSColor systemGreenColor]);
}

Color MacSystemColors::yellow() const
{
    return current([NSColor systemYellowColor]);
}

} // namespace quorvel::macos
