#include "platform/macos/windows/MacWindowList.h"

#include <CoreGraphics/CoreGraphics.h>

#include "platform/macos/CfValues.h"

namespace quorvel::macos {

namespace {

template <class T>
std::optional<T> number(CFDictionaryRef window, CFStringRef key)
{
    return integer(CFDictionaryGetValue(window, key)).transform([](auto value) { return static_cast<T>(value); });
}

std::optional<AxRect> bounds(CFDictionaryRef window)
{
    const auto description = asDictionary(CFDictionaryGetValue(window, kCGWindowBounds));
    CGRect rect{};
    if (description == nullptr || !CGRectMakeWithDictionaryRepresentation(description, &rect)) {
        return std::nullopt;
    }
    return AxRect{rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

} // namespace

std::vector<WindowListEntry> MacWindowList::onScreenWindows()
{
    const auto windows = CfRef<CFArrayRef>::adopt(CGWindowListCopyWindowInfo(
        kCGWindowListOptionOnScreenOnly | kCGWindowListExcludeDesktopElements, kCGNullWindowID));
    std::vector<WindowListEntry> entries;
    const auto count = windows ? CFArrayGetCount(windows.get()) : 0;
    for (CFIndex index = 0; index < count; ++index) {
        if (const auto window = asDictionary(CFArrayGetValueAtIndex(windows.get(), index))) {
            entries.push_back(
                {number<ProcessId>(window, kCGWindowOwnerPID), number<int>(window, kCGWindowLayer), bounds(window)});
        }
    }
    return entries;
}

} // namespace quorvel::macos
