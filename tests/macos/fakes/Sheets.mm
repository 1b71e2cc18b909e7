#include "macos/fakes/Sheets.h"

#include <map>
#include <memory>

#include <Block.h>

#include "macos/fakes/FakeDesktop.h"
#include "platform/macos/Retained.h"

using quorvel::fakes::complain;
using quorvel::macos::Retained;

namespace {

using Handler = void (^)(NSModalResponse);

// Over another window, from the beginning of the sheet to its end.
struct Sheet {
    NSWindow* parent = nil;
    std::shared_ptr<void> handler;
};

// An alert is a sheet through its window, which GNUstep's has only in a modal loop.
struct AlertParts {
    Retained<NSPanel*> window;
    Retained<NSView*> accessory;
};

std::map<NSWindow*, Sheet> sheets;
std::map<NSAlert*, AlertParts> alerts;

void begin(NSWindow* sheet, NSWindow* parent, Handler handler)
{
    if (parent == nil || quorvel::fakes::sheetOver(parent) != nil) {
        complain("A sheet was begun over a window that is nil or has one already");
    }
    sheets[sheet] = {parent, handler == nil ? nullptr : std::shared_ptr<void>(_Block_copy(handler), [](void* block) {
                         _Block_release(block);
                     })};
}

bool end(NSWindow* sheet, NSModalResponse response)
{
    const auto found = sheets.find(sheet);
    if (found == sheets.end()) {
        return false;
    }
    const auto handler = found->second.handler;
    sheets.erase(found);
    if (handler != nullptr) {
        reinterpret_cast<Handler>(handler.get())(response);
    }
    return true;
}

} // namespace

@implementation NSWindow (Sheets)

- (NSWindow*)sheetParent
{
    const auto found = sheets.find(self);
    return found == sheets.end() ? nil : found->second.parent;
}

- (void)beginSheet:(NSWindow*)sheet completionHandler:(void (^)(NSModalResponse))handler
{
    begin(sheet, self, handler);
    [sheet makeKeyAndOrderFront:nil];
}

- (void)endSheet:(NSWindow*)sheet
{
    if ([sheet sheetParent] != self || !end(sheet, NSModalResponseStop)) {
        complain("A sheet was ended that is none of the window");
    }
}

@end

@implementation NSAlert (Sheets)

- (id)window
{
    auto& window = alerts[self].window;
    if (!window) {
        window = Retained<NSPanel*>::adopt([[NSPanel alloc] initWithContentRect:NSZeroRect
                                                                      styleMask:NSWindowStyleMaskTitled
                                                                        backing:NSBackingStoreBuffered
                                                                          defer:YES]);
        [window.get() setReleasedWhenClosed:NO];
    }
    return window.get();
}

- (NSView*)accessoryView
{
    return alerts[self].accessory.get();
}

- (void)setAccessoryView:(NSView*)view
{
    alerts[self].accessory = Retained<NSView*>::retain(view);
    [[[self window] contentView] addSubview:view];
}

- (void)beginSheetModalForWindow:(NSWindow*)parent completionHandler:(void (^)(NSModalResponse))handler
{
    begin([self window], parent, handler);
}

@end

namespace quorvel::fakes {

NSWindow* sheetOver(NSWindow* window)
{
    for (const auto& [sheet, shown] : sheets) {
        if (shown.parent == window) {
            return sheet;
        }
    }
    return nil;
}

NSAlert* alertOver(NSWindow* window)
{
    for (const auto& [alert, parts] : alerts) {
        if (parts.window && [parts.window.get() sheetParent] == window) {
            return alert;
        }
    }
    return nil;
}

bool answer(NSAlert* alert, std::string_view title)
{
    NSModalResponse response = NSAlertFirstButtonReturn;
    for (NSButton* button in [alert buttons]) {
        if (title == [[button title] UTF8String]) {
            return end([alert window], response);
        }
        ++response;
    }
    return false;
}

} // namespace quorvel::fakes
