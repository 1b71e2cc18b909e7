#include "platform/macos/preferences/KeyCap.h"

#include <cmath>

#include "platform/macos/Strings.h"

namespace quorvel::macos {

namespace {

constexpr NSRect keyFrame = {{0.0, 0.0}, {110.0, 24.0}};
constexpr CGFloat cornerRadius = 5.0;

} // namespace

KeyCap::KeyCap() : box(Retained<NSBox*>::adopt([[NSBox alloc] initWithFrame:keyFrame])), label(createLabel("None"))
{
    [box.get() setBoxType:NSBoxCustom];
    [box.get() setTitlePosition:NSNoTitle];
    [box.get() setContentViewMargins:NSZeroSize];
    [box.get() setCornerRadius:cornerRadius];
    [box.get() setFillColor:[NSColor textBackgroundColor]];
    [label.get() setAlignment:NSTextAlignmentCenter];
    NSView* const content = [box.get() contentView];
    const NSSize room = [content bounds].size;
    const CGFloat height = [label.get() frame].size.height;
    [label.get() setFrame:NSMakeRect(0.0, std::round((room.height - height) / 2.0), room.width, height)];
    [label.get() setAutoresizingMask:NSViewWidthSizable | NSViewMinYMargin | NSViewMaxYMargin];
    [content addSubview:label.get()];
}

void KeyCap::show(const ShortcutControl& control, const std::string& accessibleName)
{
    [label.get() setStringValue:nsString(control.text)];
    [label.get() setAccessibilityLabel:nsString(accessibleName)];
    [label.get() setAccessibilityHelp:nsString(control.spelledOut)];
    [box.get() setToolTip:control.spelledOut.empty() ? nil : nsString(control.spelledOut)];
    [box.get() setBorderWidth:control.isRecording ? 2.0 : 1.0];
    [box.get() setBorderColor:control.isRecording ? [NSColor controlAccentColor] : [NSColor separatorColor]];
}

} // namespace quorvel::macos
