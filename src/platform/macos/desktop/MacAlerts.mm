#include "platform/macos/desktop/MacAlerts.h"

#import <AppKit/AppKit.h>

#include "platform/macos/Strings.h"

namespace quorvel::macos {

namespace {

NSAlertStyle nsStyle(AlertStyle style)
{
    switch (style) {
    case AlertStyle::informational:
        return NSAlertStyleInformational;
    case AlertStyle::warning:
        return NSAlertStyleWarning;
    }
    return NSAlertStyleInformational;
}

} // namespace

std::size_t MacAlerts::runModal(const Alert& alert)
{
    @autoreleasepool {
        const auto panel = Retained<NSAlert*>::adopt([[NSAlert alloc] init]);
        [panel.get() setAlertStyle:nsStyle(alert.style)];
        [panel.get() setMessageText:nsString(alert.messageText)];
        [panel.get() setInformativeText:nsString(alert.informativeText)];
        if (!alert.iconName.empty()) {
            [panel.get() setIcon:[bundle.get() imageForResource:nsString(alert.iconName)]];
        }
        NSButton* last = nil;
        for (const auto& title : alert.buttons) {
            last = [panel.get() addButtonWithTitle:nsString(title)];
        }
        if (alert.buttons.size() > 1) {
            [last setKeyEquivalent:@"\033"];
        }
        const auto index = static_cast<std::size_t>([panel.get() runModal] - NSAlertFirstButtonReturn);
        return index < alert.buttons.size() ? index : alert.buttons.size() - 1;
    }
}

} // namespace quorvel::macos
