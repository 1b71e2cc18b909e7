#pragma once

// What AppKit's windows, views, fonts and colours have and GNUstep's have not.

#import <AppKit/NSApplication.h>
#import <AppKit/NSColorSpace.h>
#import <AppKit/NSFont.h>
#import <AppKit/NSLayoutConstraint.h>
#import <AppKit/NSView.h>
#import <AppKit/NSWindow.h>
#include <CoreFoundation/CoreFoundation.h>

using NSFontWeight = CGFloat;
inline constexpr NSFontWeight NSFontWeightRegular = 0.0;
inline constexpr NSFontWeight NSFontWeightSemibold = 0.3;
inline constexpr NSFontWeight NSFontWeightBold = 0.4;

@interface NSFont (Weights)

+ (NSFont*)systemFontOfSize:(CGFloat)size weight:(NSFontWeight)weight;

@end

@interface NSColorSpace (Standard)

+ (NSColorSpace*)sRGBColorSpace;

@end

@interface NSView (Drawing)

@property BOOL wantsLayer;
@property BOOL clipsToBounds;

- (void)viewDidChangeBackingProperties;

@end

@interface NSView (Constraints)

- (void)addConstraint:(NSLayoutConstraint*)constraint;

@end

enum { NSWindowAnimationBehaviorNone = 2 };

@interface NSWindow (Showing)

@property NSInteger animationBehavior;

@end

extern "C" {
void CGContextBeginTransparencyLayer(CGContextRef context, CFDictionaryRef auxiliary);
void CGContextEndTransparencyLayer(CGContextRef context);
}
