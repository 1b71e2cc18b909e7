#pragma once

#include <string_view>

#import <AppKit/AppKit.h>

namespace quorvel::fakes {

// The item that this program has in the menu bar; nil for none.
NSStatusItem* statusItem();

// Opens the item's menu and closes it again; nil where there is none.
NSMenu* openStatusMenu();

// Opens it and chooses an entry, which arrives later; false if there is no such entry, or if it cannot be chosen.
bool chooseFromStatusMenu(std::string_view title);

} // namespace quorvel::fakes
