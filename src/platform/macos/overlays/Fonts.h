#pragma once

#include <string_view>

#import <AppKit/AppKit.h>

#include "base/DrawList.h"

namespace quorvel::macos {

// The system's font for user interfaces. These objects belong to the surrounding autorelease pool.
NSFont* nsFont(const Font& font);

// Of one line, whatever the text's characters are.
double lineHeight(NSFont* font);

// One line in that font: line breaks become spaces, and where room is short it ends in an ellipsis.
NSMutableAttributedString* singleLine(std::string_view text, NSFont* font, TextAlignment alignment);

} // namespace quorvel::macos
