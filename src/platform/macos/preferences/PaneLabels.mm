#include "platform/macos/preferences/PaneLabels.h"

#include <cmath>

#include "platform/macos/Strings.h"

namespace quorvel::macos {

namespace {

constexpr CGFloat titleSize = 13.0;
constexpr CGFloat headingSize = 17.0;
constexpr CGFloat noteSize = 11.0;

Label createLabelWithFont(std::string_view text, NSFont* font)
{
    auto label = Label::retain([NSTextField labelWithString:nsString(text)]);
    [label.get() setFont:font];
    [[label.get() cell] setLineBreakMode:NSLineBreakByTruncatingTail];
    [label.get() sizeToFit];
    return label;
}

} // namespace

Label createLabel(std::string_view text)
{
    return createLabelWithFont(text, [NSFont systemFontOfSize:titleSize]);
}

Label createTitle(std::string_view text)
{
    return createLabelWithFont(text, [NSFont systemFontOfSize:titleSize weight:NSFontWeightSemibold]);
}

Label createHeading(std::string_view text)
{
    return createLabelWithFont(text, [NSFont systemFontOfSize:headingSize weight:NSFontWeightSemibold]);
}

Label createNote(std::string_view text)
{
    auto label = Label::retain([NSTextField wrappingLabelWithString:nsString(text)]);
    [label.get() setFont:[NSFont systemFontOfSize:noteSize]];
    [label.get() setTextColor:[NSColor secondaryLabelColor]];
    [label.get() setSelectable:NO];
    [label.get() setHidden:text.empty()];
    return label;
}

void showText(const Label& label, std::string_view text)
{
    [label.get() setStringValue:nsString(text)];
    [label.get() setHidden:text.empty()];
}

double heightOfNote(const Label& note, double width)
{
    if ([note.get() isHidden]) {
        return 0.0;
    }
    constexpr CGFloat unlimited = 10000.0;
    return std::ceil([[note.get() cell] cellSizeForBounds:NSMakeRect(0.0, 0.0, width, unlimited)].height);
}

} // namespace quorvel::macos
