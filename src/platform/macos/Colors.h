#pragma once

#include <optional>

#import <AppKit/AppKit.h>

#include "base/Color.h"

namespace quorvel::macos {

// In sRGB, as an object of the surrounding autorelease pool.
NSColor* nsColor(const Color& color);

// What cannot be said in sRGB, such as a pattern, is clear.
Color color(NSColor* color);

// In the colours of the device, in which what a person picks is stored; nothing for what cannot be said in them.
std::optional<Color> deviceColor(NSColor* color);

} // namespace quorvel::macos
