#pragma once

#import <AppKit/AppKit.h>

#include "base/Color.h"

namespace quorvel::macos {

// In sRGB, as an object of the surrounding autorelease pool.
NSColor* nsColor(const Color& color);

// What cannot be said in sRGB, such as a pattern, is clear.
Color color(NSColor* color);

} // namespace quorvel::macos
