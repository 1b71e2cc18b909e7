#pragma once

#include <string_view>

#import <AppKit/AppKit.h>

#include "platform/macos/Retained.h"

namespace quorvel::macos {

using Label = Retained<NSTextField*>;

// Texts of a pane, as large as they are on one line.
Label createLabel(std::string_view text);
Label createTitle(std::string_view text);   // semibold
Label createHeading(std::string_view text); // over a whole pane or sheet

// In small, secondary text; it wraps.
Label createNote(std::string_view text);

void showText(const Label& label, std::string_view text);

// Of a text that wraps; nothing where it is empty.
double heightOfNote(const Label& note, double width);

} // namespace quorvel::macos
