#include <map>

#import <AppKit/AppKit.h>

#include "macos/fakes/FakeDesktop.h"
#include "macos/fakes/WindowMirror.h"

using quorvel::fakes::FakeDesktop;
using quorvel::fakes::mirrorOf;

@implementation NSFont (Weights)

+ (NSFont*)systemFontOfSize:(CGFloat)size weight:(NSFontWeight)weight
{
    return weight > NSFontWeightRegular ? [NSFont boldSystemFontOfSize:size] : [NSFont systemFontOfSize:size];
}

@end

namespace {

std::map<NSView*, BOOL> clipping;

} // namespace

@implementation NSView (Drawing)

- (BOOL)wantsLayer
{
    return YES;
}

- (void)setWantsLayer:(BOOL)wantsLayer
{}

- (BOOL)clipsToBounds
{
    return clipping[self];
}

- (void)setClipsToBounds:(BOOL)clips
{
    clipping[self] = clips;
}

- (void)viewDidChangeBackingProperties
{}

@end

@implementation NSView (Constraints)

- (void)addConstraint:(NSLayoutConstraint*)constraint
{
    NSSize& least = mirrorOf([self window]).leastSize;
    if ([[self window] contentView] != self || [constraint firstItem] != self ||
        [constraint relation] != NSLayoutRelationGreaterThanOrEqual) {
        quorvel::fakes::complain("A constraint that is not for the least size of a window");
    }
    ([constraint firstAttribute] == NSLayoutAttributeWidth ? least.width : least.height) = [constraint constant];
}

@end

@implementation NSWindow (Showing)

- (NSInteger)animationBehavior
{
    return mirrorOf(self).animationBehavior;
}

- (void)setAnimationBehavior:(NSInteger)behavior
{
    mirrorOf(self).animationBehavior = behavior;
}

@end

// What GNUstep's windows take for granted or do not do.
@implementation NSWindow (Desktop)

- (NSWindowCollectionBehavior)collectionBehavior
{
    return mirrorOf(self).collectionBehavior;
}

- (void)setCollectionBehavior:(NSWindowCollectionBehavior)behavior
{
    mirrorOf(self).collectionBehavior = static_cast<unsigned>(behavior);
}

- (BOOL)isKeyWindow
{
    return mirrorOf(self).isKey();
}

- (BOOL)setFrameAutosaveName:(NSString*)name
{
    mirrorOf(self).frameAutosaveName = [name UTF8String];
    return YES;
}

@end

@implementation NSApplication (Desktop)

- (void)activateIgnoringOtherApps:(BOOL)ignores
{
    FakeDesktop::current().desktop.workspace.activateSelf();
}

- (void)terminate:(id)sender
{
    FakeDesktop::current().desktop.workspace.terminate();
}

@end
