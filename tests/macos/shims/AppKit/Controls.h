#pragma once

// What AppKit's controls, tables and sheets have and GNUstep's have not. What only looks differently does nothing.

#import <AppKit/NSAlert.h>
#import <AppKit/NSButton.h>
#import <AppKit/NSImageView.h>
#import <AppKit/NSPasteboard.h>
#import <AppKit/NSTabViewItem.h>
#import <AppKit/NSTextField.h>
#import <AppKit/Windows.h>

#define NSBezelStyleRounded NSRoundedBezelStyle
#define NSButtonTypeMomentaryChange NSMomentaryChangeButton
#define NSButtonTypeMomentaryPushIn NSMomentaryPushInButton

@interface NSView (Accessibility)

@property(copy) NSString* accessibilityLabel;
@property(copy) NSString* accessibilityHelp;
@property(copy) NSString* accessibilityValueDescription;
@property(copy) NSString* identifier;

- (void)setAccessibilityElement:(BOOL)isElement;
- (void)setAccessibilityExpanded:(BOOL)isExpanded;
- (void)setAccessibilityRole:(NSString*)role;

@end

@interface NSTextField (Labels)

+ (instancetype)labelWithString:(NSString*)text;
+ (instancetype)wrappingLabelWithString:(NSString*)text;

@end

@interface NSButton (Roles)

@property BOOL hasDestructiveAction;

@end

@interface NSImage (Symbols)

+ (NSImage*)imageWithSystemSymbolName:(NSString*)name accessibilityDescription:(NSString*)description;

@end

@interface NSImageView (Symbols)

- (void)setContentTintColor:(NSColor*)color;

@end

@interface NSColor (Roles)

+ (NSColor*)separatorColor;

@end

@interface NSFont (Digits)

+ (NSFont*)monospacedDigitSystemFontOfSize:(CGFloat)size weight:(NSFontWeight)weight;

@end

@interface NSTabViewItem (Symbols)

- (void)setImage:(NSImage*)image;

@end

@interface NSTableCellView : NSView {
    NSTextField* _textField;
}

@property(assign) NSTextField* textField;

@end

@interface NSPasteboard (Items)

@property(readonly) NSArray* pasteboardItems;

@end

enum { NSWindowToolbarStyleUnified = 3 };

@interface NSWindow (Preferences)

@property BOOL titlebarAppearsTransparent;
@property NSInteger toolbarStyle;
@property(copy) NSURL* representedURL;

@end

// Sheets

@interface NSWindow (Sheets)

@property(readonly) NSWindow* sheetParent;

- (void)beginSheet:(NSWindow*)sheet completionHandler:(void (^)(NSModalResponse))handler;
- (void)endSheet:(NSWindow*)sheet;

@end

@interface NSAlert (Sheets)

@property(retain) NSView* accessoryView;

- (void)beginSheetModalForWindow:(NSWindow*)window completionHandler:(void (^)(NSModalResponse))handler;

@end
