#import <AppKit/AppKit.h>

#include "macos/fakes/FakeDesktop.h"
#include "platform/macos/Strings.h"

using namespace quorvel;
using fakes::FakeDesktop;

namespace {

Alert description(NSAlert* alert)
{
    Alert result{.style = [alert alertStyle] == NSAlertStyleWarning ? AlertStyle::warning : AlertStyle::informational,
                 .messageText = macos::utf8([alert messageText]),
                 .informativeText = macos::utf8([alert informativeText]),
                 .iconName = macos::utf8([[alert icon] name]),
                 .buttons = {}};
    for (NSButton* each in [alert buttons]) {
        result.buttons.push_back(macos::utf8([each title]));
    }
    return result;
}

} // namespace

@implementation NSAlert (Desktop)

- (NSInteger)runModal
{
    const auto alert = description(self);
    if (alert.buttons.size() > 1 && ![[[[self buttons] lastObject] keyEquivalent] isEqual:@"\033"]) {
        fakes::complain("Escape does not press the last button of an alert");
    }
    const auto answer = FakeDesktop::current().desktop.alerts.runModal(alert);
    [[NSNotificationCenter defaultCenter] postNotificationName:NSWindowDidResignKeyNotification object:[self window]];
    return NSAlertFirstButtonReturn + static_cast<NSInteger>(answer);
}

@end
