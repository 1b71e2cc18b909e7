#include "platform/macos/desktop/MainMenu.h"

#include <initializer_list>

namespace quorvel::macos {

namespace {

struct Entry {
    NSString* title;
    SEL action;
    NSString* key; // with Command; a capital letter wants Shift, too
};

void addSubmenu(NSMenu* menu, NSString* title, std::initializer_list<Entry> entries)
{
    const auto submenu = Retained<NSMenu*>::adopt([[NSMenu alloc] initWithTitle:title]);
    for (const auto& entry : entries) {
        [submenu.get() addItemWithTitle:entry.title action:entry.action keyEquivalent:entry.key];
    }
    const auto item = Retained<NSMenuItem*>::adopt([[NSMenuItem alloc] initWithTitle:title
                                                                              action:nullptr
                                                                       keyEquivalent:@""]);
    [item.get() setSubmenu:submenu.get()];
    [menu addItem:item.get()];
}

} // namespace

Retained<NSMenu*> mainMenu()
{
    @autoreleasepool {
        auto menu = Retained<NSMenu*>::adopt([[NSMenu alloc] initWithTitle:@"Quorvel"]);
        addSubmenu(menu.get(), @"Quorvel", {{@"Quit Quorvel", @selector(terminate:), @"q"}});
        addSubmenu(menu.get(), @"Edit",
                   {{@"Undo", @selector(undo:), @"z"},
                    {@"Redo", @selector(redo:), @"Z"},
                    {@"Cut", @selector(cut:), @"x"},
                    {@"Copy", @selector(copy:), @"c"},
                    {@"Paste", @selector(paste:), @"v"},
                    {@"Select All", @selector(selectAll:), @"a"}});
        addSubmenu(menu.get(), @"Window",
                   {{@"Close", @selector(performClose:), @"w"}, {@"Minimize", @selector(performMiniaturize:), @"m"}});
        return menu;
    }
}

} // namespace quorvel::macos
