#include "platform/macos/desktop/StatusMenuFiller.h"

#include <Carbon/Carbon.h>

#include "platform/macos/Retained.h"
#include "platform/macos/Strings.h"

// Carbon has a MenuCommand, too, so these come one by one.
using quorvel::Menu;
using quorvel::MenuItem;
using quorvel::macos::nsString;
using quorvel::macos::Retained;

namespace {

Retained<NSMenuItem*> createItem(std::string_view title, SEL action, std::string_view keyEquivalent)
{
    return Retained<NSMenuItem*>::adopt([[NSMenuItem alloc] initWithTitle:nsString(title)
                                                                   action:action
                                                            keyEquivalent:nsString(keyEquivalent)]);
}

} // namespace

@implementation QuorvelStatusMenuFiller

- (void)setMenu:(const Menu&)menu onCommand:(std::function<void(quorvel::MenuCommand)>)newOnCommand
{
    content = menu;
    onCommand = std::move(newOnCommand);
}

- (void)menuNeedsUpdate:(NSMenu*)menu
{
    [menu removeAllItems];
    if (!content.secureInputNotice.empty() && IsSecureEventInputEnabled()) {
        [self addNoticeTo:menu];
    }
    for (const auto& entry : content.entries) {
        if (entry) {
            [self add:*entry to:menu];
        } else {
            [menu addItem:[NSMenuItem separatorItem]];
        }
    }
}

- (void)addNoticeTo:(NSMenu*)menu
{
    const auto notice = createItem(content.secureInputNotice, nullptr, {});
    [notice.get() setEnabled:NO];
    [menu addItem:notice.get()];
    [menu addItem:[NSMenuItem separatorItem]];
}

- (void)add:(const MenuItem&)item to:(NSMenu*)menu
{
    const auto added = createItem(item.title, @selector(choose:), item.keyEquivalent);
    [added.get() setTarget:self];
    [added.get() setTag:static_cast<NSInteger>(item.command)];
    [added.get() setEnabled:item.isEnabled ? YES : NO];
    if (!item.toolTip.empty()) {
        [added.get() setToolTip:nsString(item.toolTip)];
    }
    [menu addItem:added.get()];
}

- (void)choose:(NSMenuItem*)item
{
    onCommand(static_cast<quorvel::MenuCommand>([item tag]));
}

@end
