#include "platform/macos/preferences/ListSheetWindow.h"

#include <algorithm>
#include <utility>

#include "platform/macos/Strings.h"
#include "platform/macos/preferences/PaneMetrics.h"
#include "platform/macos/preferences/ScrollingViews.h"

namespace quorvel::macos {

namespace {

constexpr NSRect sheetContent = {{0.0, 0.0}, {560.0, 420.0}};
constexpr double symbolSide = 44.0;

} // namespace

ListSheetWindow::ListSheetWindow(const ListSheet& sheet, Press press, NSWindow* owner)
    : press(std::move(press)),
      owner(Retained<NSWindow*>::retain(owner)),
      box([this] { layOut(); }),
      scroll(createScrollView(list.view())),
      title(createHeading(sheet.title)),
      footer(createLabel(sheet.footer)),
      close(sheet.close, this->press),
      placeholderSymbol(Retained<NSImageView*>::adopt([[NSImageView alloc] initWithFrame:NSZeroRect])),
      placeholderHeading(createTitle({})),
      placeholderLine(createLabel({})),
      window(
          Retained<QuorvelShellWindow*>::adopt([[QuorvelShellWindow alloc] initWithContentRect:sheetContent
                                                                                     styleMask:NSWindowStyleMaskTitled
                                                                                       backing:NSBackingStoreBuffered
                                                                                         defer:YES]))
{
    for (NSView* const part : {static_cast<NSView*>(title.get()), static_cast<NSView*>(scroll.get()),
                               static_cast<NSView*>(footer.get()), static_cast<NSView*>(close.view())}) {
        box.add(part);
    }
    for (NSView* const part :
         {static_cast<NSView*>(placeholderSymbol.get()), static_cast<NSView*>(placeholderHeading.get()),
          static_cast<NSView*>(placeholderLine.get())}) {
        list.add(part);
    }
    [footer.get() setTextColor:[NSColor secondaryLabelColor]];
    [placeholderSymbol.get() setContentTintColor:[NSColor secondaryLabelColor]];
    [placeholderLine.get() setTextColor:[NSColor secondaryLabelColor]];
    for (const auto& label : {placeholderHeading, placeholderLine}) {
        [label.get() setAlignment:NSTextAlignmentCenter];
    }
    [window.get() setReleasedWhenClosed:NO];
    [window.get() setEscape:[this] { this->press(shown.close.id); }]; // the model takes the sheet away
    [window.get() setContentView:box.view()];
    fill(sheet);
    [owner beginSheet:window.get() completionHandler:nil];
}

ListSheetWindow::~ListSheetWindow()
{
    [window.get() setEscape:{}];
    [owner.get() endSheet:window.get()];
    [window.get() orderOut:nil];
}

void ListSheetWindow::show(const ListSheet& sheet)
{
    if (sheet != shown) {
        fill(sheet);
    }
}

void ListSheetWindow::fill(const ListSheet& sheet)
{
    for (const auto& row : rows) {
        [row->view() removeFromSuperview];
    }
    rows.clear();
    shown = sheet;
    [window.get() setTitle:nsString(sheet.title)];
    showText(title, sheet.title);
    showText(footer, sheet.footer);
    close.show(sheet.close);
    for (const auto& row : sheet.rows) {
        rows.push_back(std::make_unique<ListSheetRowView>(row, press));
        list.add(rows.back()->view());
    }

    const bool isEmpty = rows.empty();
    [placeholderSymbol.get() setImage:[NSImage imageWithSystemSymbolName:nsString(sheet.placeholder.symbol)
                                                accessibilityDescription:nil]];
    [placeholderSymbol.get() setHidden:!isEmpty];
    showText(placeholderHeading, isEmpty ? sheet.placeholder.heading : std::string());
    showText(placeholderLine, isEmpty ? sheet.placeholder.line : std::string());
    layOut();
}

void ListSheetWindow::layOut() const
{
    using namespace paneMetrics;
    const NSSize size = box.size();
    const double inside = size.width - 2.0 * margin;
    const double titleHeight = [title.get() frame].size.height;
    [title.get() setFrame:NSMakeRect(margin, margin, inside, titleHeight)];

    const NSSize button = [close.view() frame].size;
    const double foot = size.height - margin - button.height;
    [close.view() setFrameOrigin:NSMakePoint(size.width - margin - button.width, foot)];
    const double footerHeight = [footer.get() frame].size.height;
    [footer.get() setFrame:NSMakeRect(margin, foot + (button.height - footerHeight) / 2.0,
                                      inside - button.width - partSpacing, footerHeight)];

    const double top = margin + titleHeight + groupSpacing;
    [scroll.get() setFrame:NSMakeRect(margin, top, inside, std::max(0.0, foot - groupSpacing - top))];
    layOutList();
    if (rows.empty()) {
        layOutPlaceholder();
    }
}

void ListSheetWindow::layOutList() const
{
    const NSSize room = [scroll.get() contentSize];
    double y = 0.0;
    for (const auto& row : rows) {
        const double height = row->height();
        row->setFrame(NSMakeRect(0.0, y, room.width, height));
        y += height + paneMetrics::titleSpacing;
    }
    [list.view() setFrameSize:NSMakeSize(room.width, std::max(y, static_cast<double>(room.height)))];
}

void ListSheetWindow::layOutPlaceholder() const
{
    const NSSize room = list.size();
    const double heading = [placeholderHeading.get() frame].size.height;
    const double line = [placeholderLine.get() frame].size.height;
    double y = (room.height - symbolSide - heading - line - 2.0 * paneMetrics::partSpacing) / 2.0;
    [placeholderSymbol.get() setFrame:NSMakeRect((room.width - symbolSide) / 2.0, y, symbolSide, symbolSide)];
    y += symbolSide + paneMetrics::partSpacing;
    [placeholderHeading.get() setFrame:NSMakeRect(0.0, y, room.width, heading)];
    y += heading + paneMetrics::partSpacing;
    [placeholderLine.get() setFrame:NSMakeRect(0.0, y, room.width, line)];
}

} // namespace quorvel::macos
