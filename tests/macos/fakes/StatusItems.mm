#include "macos/fakes/StatusItems.h"

#include "macos/fakes/FakeDesktop.h"
#include "platform/macos/Retained.h"

using namespace quorvel;
using macos::Retained;

namespace {

std::vector<Retained<NSStatusItem*>> items;

} // namespace

@implementation NSStatusItem

@synthesize menu = _menu;

- (instancetype)init
{
    self = [super init];
    _button = [[NSButton alloc] initWithFrame:NSMakeRect(0.0, 0.0, 24.0, 22.0)];
    return self;
}

- (void)dealloc
{
    [_button release];
    [_menu release];
    [super dealloc];
}

- (NSButton*)button
{
    return _button;
}

@end

@implementation NSStatusBar

+ (NSStatusBar*)systemStatusBar
{
    return [[[self alloc] init] autorelease];
}

- (NSStatusItem*)statusItemWithLength:(CGFloat)length
{
    if (length != NSVariableStatusItemLength) {
        fakes::complain("A status item is not as wide as its content");
    }
    items.push_back(Retained<NSStatusItem*>::adopt([[NSStatusItem alloc] init]));
    return items.back().get();
}

- (void)removeStatusItem:(NSStatusItem*)item
{
    if (std::erase_if(items, [item](const auto& each) { return each.get() == item; }) == 0) {
        fakes::complain("A status item was removed that is not there");
    }
}

@end

@implementation NSMenu (Emptying)

- (void)removeAllItems
{
    while ([self numberOfItems] > 0) {
        [self removeItemAtIndex:0];
    }
}

@end

namespace quorvel::fakes {

NSStatusItem* statusItem()
{
    return items.empty() ? nil : items.back().get();
}

NSMenu* openStatusMenu()
{
    NSMenu* const menu = [statusItem() menu];
    [static_cast<id<NSMenuDelegate>>([menu delegate]) menuNeedsUpdate:menu];
    return menu;
}

bool chooseFromStatusMenu(std::string_view title)
{
    const id entry = [openStatusMenu() itemWithTitle:[NSString stringWithUTF8String:std::string(title).c_str()]];
    if (entry == nil || ![entry isEnabled] || [entry action] == nullptr) {
        return false;
    }
    FakeDesktop::current().desktop.mainQueue.async([chosen = Retained<id>::retain(entry)] {
        [NSApp sendAction:[chosen.get() action] to:[chosen.get() target] from:chosen.get()];
    });
    return true;
}

} // namespace quorvel::fakes
