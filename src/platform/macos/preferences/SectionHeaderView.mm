#include "platform/macos/preferences/SectionHeaderView.h"

#include <utility>

#include "platform/macos/Strings.h"

namespace quorvel::macos {

SectionHeaderView::SectionHeaderView(const LayoutSectionHeader& header, std::function<void()> click)
    : button(Retained<NSButton*>::adopt([[NSButton alloc] initWithFrame:NSZeroRect])),
      action(button.get(), std::move(click))
{
    NSButton* const view = button.get();
    [view setButtonType:NSButtonTypeMomentaryChange];
    [view setBordered:NO];
    [view setAlignment:NSTextAlignmentLeft];
    [view setTitle:nsString(header.title)];
    [view setFont:[NSFont systemFontOfSize:[NSFont smallSystemFontSize] weight:NSFontWeightSemibold]];
    [view setImage:[NSImage imageWithSystemSymbolName:header.isCollapsed ? @"chevron.right" : @"chevron.down"
                             accessibilityDescription:nil]];
    [view setImagePosition:NSImageLeft];
    [view setAccessibilityLabel:nsString(header.title)];
    [view setAccessibilityExpanded:!header.isCollapsed];
}

} // namespace quorvel::macos
