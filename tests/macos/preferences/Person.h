#pragma once

#include <string>
#include <string_view>
#include <vector>

#import <AppKit/AppKit.h>

// What a person sees of the shell's windows and does in them. Controls are known by their accessible names.
namespace quorvel::macos::person {

// A visible window; nil for none.
NSWindow* window(std::string_view title);

std::vector<NSView*> viewsIn(NSView* view);

// The first view of that kind and name in the window; nil for none.
NSView* find(NSWindow* window, Class kind, std::string_view name);

template <class View>
View* find(NSWindow* window, std::string_view name)
{
    return static_cast<View*>(find(window, [View class], name));
}

// All texts that can be read in the window.
std::vector<std::string> texts(NSWindow* window);

// Sends the action of a control, as it does when it is used.
void use(NSControl* control);

} // namespace quorvel::macos::person
