#import <AppKit/AppKit.h>

// Its views grow with it.
@interface QuorvelTabView : NSTabView
@end

@implementation QuorvelTabView

- (void)resizeSubviewsWithOldSize:(NSSize)oldSize
{
    [[[self selectedTabViewItem] view] setFrame:[self contentRect]];
}

@end

// GNUstep's has no view. This one shows its tabs in a plain tab view, without buttons in a toolbar.
@implementation NSTabViewController (Tabs)

- (void)loadView
{
    NSTabView* const tabs = [[[QuorvelTabView alloc] initWithFrame:NSMakeRect(0.0, 0.0, 100.0, 100.0)] autorelease];
    [tabs setTabViewType:NSNoTabsNoBorder];
    [tabs setDelegate:self];
    [self setView:tabs];
}

- (NSTabView*)tabView
{
    return static_cast<NSTabView*>([self view]);
}

- (void)addTabViewItem:(NSTabViewItem*)item
{
    [item setView:[[item viewController] view]];
    [[self tabView] addTabViewItem:item];
}

- (NSInteger)selectedTabViewItemIndex
{
    return [[self tabView] indexOfTabViewItem:[[self tabView] selectedTabViewItem]];
}

- (void)setSelectedTabViewItemIndex:(NSInteger)index
{
    [[self tabView] selectTabViewItemAtIndex:index];
}

- (BOOL)tabView:(NSTabView*)tabView shouldSelectTabViewItem:(NSTabViewItem*)item
{
    return YES;
}

- (void)tabView:(NSTabView*)tabView willSelectTabViewItem:(NSTabViewItem*)item
{}

- (void)tabView:(NSTabView*)tabView didSelectTabViewItem:(NSTabViewItem*)item
{}

@end
