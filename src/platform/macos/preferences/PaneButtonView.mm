#include "platform/macos/preferences/PaneButtonView.h"

#include <algorithm>
#include <utility>

#include "platform/macos/Strings.h"
#include "platform/macos/preferences/ButtonRoles.h"

namespace quorvel::macos {

PaneButtonView::PaneButtonView(const PaneButton& button, Press press)
    : widget(Retained<NSButton*>::adopt([[NSButton alloc] initWithFrame:NSZeroRect])),
      action(widget.get(), [press = std::move(press), id = button.id] { press(id); })
{
    [widget.get() setButtonType:NSButtonTypeMomentaryPushIn];
    [widget.get() setBezelStyle:NSBezelStyleRounded];
    giveRole(widget.get(), button.role);
    show(button);
}

void PaneButtonView::show(const PaneButton& button)
{
    NSButton* const view = widget.get();
    const std::string& name = button.accessibleName.empty() ? button.title : button.accessibleName;
    [view setTitle:nsString(button.title)];
    if (button.symbol != shownSymbol) {
        shownSymbol = button.symbol;
        [view setImage:[NSImage imageWithSystemSymbolName:nsString(button.symbol)
                                 accessibilityDescription:nsString(name)]];
    }
    const bool hasImage = [view image] != nil;
    [view setImagePosition:hasImage ? NSImageOnly : NSNoImage];
    [view setToolTip:hasImage ? nsString(name) : nil];
    [view setAccessibilityLabel:nsString(name)];
    [view setEnabled:button.isEnabled];

    const CGFloat widest = [view frame].size.width;
    [view sizeToFit];
    const NSSize fitting = [view frame].size;
    [view setFrameSize:NSMakeSize(std::max(widest, fitting.width), fitting.height)];
}

} // namespace quorvel::macos
