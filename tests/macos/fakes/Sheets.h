#pragma once

#include <string_view>

#import <AppKit/AppKit.h>

namespace quorvel::fakes {

// What lies over a window; nil for nothing.
NSWindow* sheetOver(NSWindow* window);
NSAlert* alertOver(NSWindow* window);

// A person presses the button of that title. False if the alert is not shown or has no such button.
bool answer(NSAlert* alert, std::string_view title);

} // namespace quorvel::fakes
