#include <map>
#include <string>

#import <AppKit/AppKit.h>

namespace {

// What is known of an object besides what GNUstep keeps: by object, by name.
std::map<const void*, std::map<std::string, std::string>> notes;

void setNote(id object, const char* name, NSString* text)
{
    notes[object][name] = text == nil ? std::string() : std::string([text UTF8String]);
}

NSString* note(id object, const char* name)
{
    const auto& texts = notes[object];
    const auto found = texts.find(name);
    return found == texts.end() ? nil : [NSString stringWithUTF8String:found->second.c_str()];
}

} // namespace

@implementation NSView (Accessibility)

- (NSString*)accessibilityLabel
{
    return note(self, "label");
}

- (void)setAccessibilityLabel:(NSString*)label
{
    setNote(self, "label", label);
}

- (NSString*)accessibilityHelp
{
    return note(self, "help");
}

- (void)setAccessibilityHelp:(NSString*)help
{
    setNote(self, "help", help);
}

- (NSString*)accessibilityValueDescription
{
    return note(self, "value");
}

- (void)setAccessibilityValueDescription:(NSString*)value
{
    setNote(self, "value", value);
}

- (NSString*)identifier
{
    return note(self, "identifier");
}

- (void)setIdentifier:(NSString*)identifier
{
    setNote(self, "identifier", identifier);
}

- (void)setAccessibilityElement:(BOOL)isElement
{}

- (void)setAccessibilityExpanded:(BOOL)isExpanded
{}

- (void)setAccessibilityRole:(NSString*)role
{}

@end

// GNUstep's has a name of its own, which is empty.
@implementation NSSwitch (Accessibility)

- (NSString*)accessibilityLabel
{
    return note(self, "label");
}

@end

@implementation NSTextField (Labels)

+ (instancetype)labelWithString:(NSString*)text
{
    NSTextField* const label = [[[self alloc] initWithFrame:NSZeroRect] autorelease];
    [label setStringValue:text];
    [label setBezeled:NO];
    [label setDrawsBackground:NO];
    [label setEditable:NO];
    [label setSelectable:NO];
    [label sizeToFit];
    return label;
}

+ (instancetype)wrappingLabelWithString:(NSString*)text
{
    NSTextField* const label = [self labelWithString:text];
    [[label cell] setWraps:YES];
    return label;
}

@end

@implementation NSButton (Roles)

- (BOOL)hasDestructiveAction
{
    return [note(self, "destructive") isEqualToString:@"yes"];
}

- (void)setHasDestructiveAction:(BOOL)isDestructive
{
    setNote(self, "destructive", isDestructive ? @"yes" : @"no");
}

@end

@implementation NSImage (Symbols)

// Nothing to see, but its name.
+ (NSImage*)imageWithSystemSymbolName:(NSString*)name accessibilityDescription:(NSString*)description
{
    if ([name length] == 0) {
        return nil;
    }
    NSImage* const known = [NSImage imageNamed:name];
    if (known != nil) {
        return known;
    }
    constexpr NSSize size = {16.0, 16.0};
    NSImage* const symbol = [[[NSImage alloc] initWithSize:size] autorelease];
    [symbol setName:name];
    return symbol;
}

@end

@implementation NSImageView (Symbols)

- (void)setContentTintColor:(NSColor*)color
{}

@end

@implementation NSColor (Roles)

+ (NSColor*)separatorColor
{
    return [NSColor grayColor];
}

@end

@implementation NSFont (Digits)

+ (NSFont*)monospacedDigitSystemFontOfSize:(CGFloat)size weight:(NSFontWeight)weight
{
    return [NSFont systemFontOfSize:size weight:weight];
}

@end

@implementation NSTabViewItem (Symbols)

- (void)setImage:(NSImage*)image
{
    setNote(self, "image", [image name]);
}

@end

// Sources of tables of cells have to have it, those of views need not.
@implementation NSObject (TableSources)

- (id)tableView:(NSTableView*)table objectValueForTableColumn:(NSTableColumn*)column row:(NSInteger)row
{
    return nil;
}

@end

@implementation NSTableCellView

@synthesize textField = _textField;

@end

@implementation NSWindow (Preferences)

- (BOOL)titlebarAppearsTransparent
{
    return [note(self, "transparent title bar") isEqualToString:@"yes"];
}

- (void)setTitlebarAppearsTransparent:(BOOL)isTransparent
{
    setNote(self, "transparent title bar", isTransparent ? @"yes" : @"no");
}

- (NSInteger)toolbarStyle
{
    return [note(self, "toolbar") integerValue];
}

- (void)setToolbarStyle:(NSInteger)style
{
    setNote(self, "toolbar", [NSString stringWithFormat:@"%ld", static_cast<long>(style)]);
}

- (NSURL*)representedURL
{
    return [NSURL URLWithString:note(self, "represented")];
}

- (void)setRepresentedURL:(NSURL*)url
{
    setNote(self, "represented", [url absoluteString]);
}

@end
