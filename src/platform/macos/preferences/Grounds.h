#pragma once

#import <AppKit/AppKit.h>

#include "platform/macos/Retained.h"

namespace quorvel::macos {

// A hairline.
inline Retained<NSBox*> createSeparator()
{
    auto line = Retained<NSBox*>::adopt([[NSBox alloc] initWithFrame:NSMakeRect(0.0, 0.0, 1.0, 1.0)]);
    [line.get() setBoxType:NSBoxSeparator];
    return line;
}

// The ground of things that belong together, which lie on it, not in it.
inline Retained<NSBox*> createCard()
{
    constexpr CGFloat cornerRadius = 8.0;
    auto card = Retained<NSBox*>::adopt([[NSBox alloc] initWithFrame:NSZeroRect]);
    [card.get() setBoxType:NSBoxCustom];
    [card.get() setTitlePosition:NSNoTitle];
    [card.get() setCornerRadius:cornerRadius];
    [card.get() setBorderWidth:1.0];
    [card.get() setBorderColor:[NSColor separatorColor]];
    [card.get() setFillColor:[[NSColor labelColor] colorWithAlphaComponent:0.03]];
    return card;
}

} // namespace quorvel::macos
