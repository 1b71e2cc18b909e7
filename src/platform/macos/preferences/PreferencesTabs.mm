#include "platform/macos/preferences/PreferencesTabs.h"

#include <utility>

#include "platform/macos/Retained.h"

using quorvel::macos::Retained;

@implementation QuorvelPreferencesTabs

- (void)setChosen:(std::function<void(std::size_t)>)newChosen
{
    chosen = std::move(newChosen);
}

- (void)addTabWithTitle:(NSString*)title symbol:(NSString*)symbol view:(NSView*)view
{
    const auto pane = Retained<NSViewController*>::adopt([[NSViewController alloc] initWithNibName:nil bundle:nil]);
    [pane.get() setView:view];
    [pane.get() setTitle:title];
    NSTabViewItem* const item = [NSTabViewItem tabViewItemWithViewController:pane.get()];
    [item setLabel:title];
    [item setImage:[NSImage imageWithSystemSymbolName:symbol accessibilityDescription:title]];
    [self addTabViewItem:item];
}

- (void)tabView:(NSTabView*)tabView didSelectTabViewItem:(NSTabViewItem*)item
{
    [super tabView:tabView didSelectTabViewItem:item];
    const NSInteger index = [tabView indexOfTabViewItem:item];
    if (chosen && index >= 0 && index != NSNotFound) {
        chosen(static_cast<std::size_t>(index));
    }
}

@end
