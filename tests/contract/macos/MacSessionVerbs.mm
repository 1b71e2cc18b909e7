#include "contract/macos/MacSessionVerbs.h"

#include <algorithm>

#import <AppKit/AppKit.h>

#include "macos/fakes/WindowMirror.h"
#include "platform/macos/Strings.h"

namespace quorvel::contract {

namespace {

NSWindow* shownWindow(std::string_view title)
{
    for (NSWindow* each in [NSApp windows]) {
        if ([each isVisible] && macos::utf8([each title]) == title) {
            return each;
        }
    }
    return nil;
}

} // namespace

bool MacSessionVerbs::isShown(std::string_view title)
{
    return shownWindow(title) != nil;
}

Size MacSessionVerbs::contentSize(std::string_view title)
{
    const NSSize size = [[shownWindow(title) contentView] frame].size;
    return {size.width, size.height};
}

// The system stops at the window's limits while an edge is dragged.
void MacSessionVerbs::resize(std::string_view title, const Size& contentSize)
{
    NSWindow* const window = shownWindow(title);
    const NSSize least = fakes::mirrorOf(window).leastSize;
    [window setContentSize:NSMakeSize(std::max(contentSize.width, static_cast<double>(least.width)),
                                      std::max(contentSize.height, static_cast<double>(least.height)))];
}

// While another program was in front, the window did not have the keyboard.
void MacSessionVerbs::focusShellWindow(std::string_view title)
{
    NSWindow* const window = shownWindow(title);
    [window resignKeyWindow];
    [window makeKeyAndOrderFront:nil];
    [NSApp activateIgnoringOtherApps:YES];
}

void MacSessionVerbs::closeShellWindow(std::string_view title)
{
    [shownWindow(title) performClose:nil];
}

} // namespace quorvel::contract
