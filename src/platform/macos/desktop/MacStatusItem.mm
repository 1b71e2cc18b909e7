#include "platform/macos/desktop/MacStatusItem.h"

#include "platform/macos/Strings.h"

namespace quorvel::macos {

MacStatusItem::MacStatusItem(Retained<NSBundle*> bundle)
    : bundle(std::move(bundle)),
      item(Retained<NSStatusItem*>::retain(
          [[NSStatusBar systemStatusBar] statusItemWithLength:NSVariableStatusItemLength])),
      shownMenu(Retained<NSMenu*>::adopt([[NSMenu alloc] initWithTitle:@""])),
      filler(Retained<QuorvelStatusMenuFiller*>::adopt([[QuorvelStatusMenuFiller alloc] init]))
{
    [shownMenu.get() setAutoenablesItems:NO];
    [shownMenu.get() setDelegate:filler.get()];
    [[item.get() button] setAccessibilityLabel:[this->bundle.get() objectForInfoDictionaryKey:@"CFBundleName"]];
}

MacStatusItem::~MacStatusItem()
{
    @autoreleasepool {
        [shownMenu.get() setDelegate:nil];
        [item.get() setMenu:nil];
        [[NSStatusBar systemStatusBar] removeStatusItem:item.get()];
    }
}

bool MacStatusItem::hasButton() const
{
    return [item.get() button] != nil;
}

void MacStatusItem::setImage(const Image& image)
{
    @autoreleasepool {
        NSImage* const picture = [bundle.get() imageForResource:nsString(image.name)];
        [picture setTemplate:image.isTemplate ? YES : NO];
        [[item.get() button] setImage:picture];
    }
}

void MacStatusItem::setMenu(const Menu& menu, std::function<void(MenuCommand)> onCommand)
{
    @autoreleasepool {
        [filler.get() setMenu:menu onCommand:std::move(onCommand)];
        [filler.get() menuNeedsUpdate:shownMenu.get()];
        [item.get() setMenu:shownMenu.get()];
    }
}

} // namespace quorvel::macos
