#include "macos/preferences/Person.h"

#include "platform/macos/Strings.h"

namespace quorvel::macos::person {

namespace {

bool isShown(NSView* view)
{
    for (NSView* each = view; each != nil; each = [each superview]) {
        if ([each isHidden]) {
            return false;
        }
    }
    return true;
}

void collect(NSView* view, std::vector<NSView*>& views)
{
    views.push_back(view);
    for (NSView* each in [view subviews]) {
        collect(each, views);
    }
}

} // namespace

NSWindow* window(std::string_view title)
{
    for (NSWindow* each in [NSApp windows]) {
        if ([each isVisible] && utf8([each title]) == title) {
            return each;
        }
    }
    return nil;
}

std::vector<NSView*> viewsIn(NSView* view)
{
    std::vector<NSView*> views;
    collect(view, views);
    return views;
}

NSView* find(NSWindow* window, Class kind, std::string_view name)
{
    for (NSView* const each : viewsIn([window contentView])) {
        if ([each isKindOfClass:kind] && utf8([each accessibilityLabel]) == name && isShown(each)) {
            return each;
        }
    }
    return nil;
}

std::vector<std::string> texts(NSWindow* window)
{
    std::vector<std::string> result;
    for (NSView* const each : viewsIn([window contentView])) {
        if ([each isKindOfClass:[NSTextField class]] && isShown(each)) {
            result.push_back(utf8([static_cast<NSTextField*>(each) stringValue]));
        }
    }
    return result;
}

void use(NSControl* control)
{
    [control sendAction:[control action] to:[control target]];
}

} // namespace quorvel::macos::person
