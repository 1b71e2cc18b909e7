#include "platform/macos/desktop/MacScreens.h"

#import <AppKit/AppKit.h>

#include "platform/macos/Rects.h"

namespace quorvel::macos {

namespace {

Screen description(NSScreen* screen)
{
    NSNumber* const number = [[screen deviceDescription] objectForKey:@"NSScreenNumber"];
    return {[number unsignedLongLongValue], screenRect([screen frame]), screenRect([screen visibleFrame])};
}

} // namespace

std::vector<Screen> MacScreens::screens()
{
    @autoreleasepool {
        std::vector<Screen> result;
        for (NSScreen* each in [NSScreen screens]) {
            result.push_back(description(each));
        }
        return result;
    }
}

std::optional<Screen> MacScreens::mainScreen()
{
    @autoreleasepool {
        NSScreen* const main = [NSScreen mainScreen];
        return main != nil ? std::optional(description(main)) : std::nullopt;
    }
}

} // namespace quorvel::macos
