#pragma once

// The menu bar, alerts, images and colours of the system, where GNUstep has other ones or none.

#import <AppKit/NSAlert.h>
#import <AppKit/NSAppearance.h>
#import <AppKit/NSApplication.h>
#import <AppKit/NSButton.h>
#import <AppKit/NSColor.h>
#import <AppKit/NSImage.h>
#import <AppKit/NSMenu.h>
#import <AppKit/NSStatusBar.h>
#import <AppKit/NSStatusItem.h>

#define NSStatusItem QuorvelStatusItem
@interface QuorvelStatusItem : NSObject {
    NSButton* _button;
    NSMenu* _menu;
}

@property(readonly) NSButton* button;
@property(retain) NSMenu* menu;

@end

#define NSStatusBar QuorvelStatusBar
@interface QuorvelStatusBar : NSObject

+ (QuorvelStatusBar*)systemStatusBar;
- (QuorvelStatusItem*)statusItemWithLength:(CGFloat)length;
- (void)removeStatusItem:(QuorvelStatusItem*)item;

@end

@interface NSMenu (Emptying)

- (void)removeAllItems;

@end

#define NSAlertStyleInformational NSInformationalAlertStyle
#define NSAlertStyleWarning NSWarningAlertStyle

@interface NSBundle (Images)

- (NSImage*)imageForResource:(NSString*)name;

@end

@interface NSImage (Templates)

- (BOOL)isTemplate;
- (void)setTemplate:(BOOL)isTemplate;

@end

@interface NSColor (Accent)

+ (NSColor*)controlAccentColor;

@end

@interface NSAppearance (Drawing)

- (void)performAsCurrentDrawingAppearance:(void (^)(void))work;

@end

@interface NSApplication (Appearance)

@property(readonly) NSAppearance* effectiveAppearance;

@end
