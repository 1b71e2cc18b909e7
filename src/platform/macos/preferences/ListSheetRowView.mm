#include "platform/macos/preferences/ListSheetRowView.h"

#include <algorithm>
#include <ranges>

#include "platform/macos/Strings.h"
#include "platform/macos/preferences/Grounds.h"
#include "platform/macos/preferences/PaneMetrics.h"

namespace quorvel::macos {

ListSheetRowView::ListSheetRowView(const ListSheetRow& row, const PaneButtonView::Press& press)
    : card(createCard()), title(createTitle(row.title)), subtitle(createNote(row.subtitle))
{
    for (NSView* const part :
         {static_cast<NSView*>(card.get()), static_cast<NSView*>(title.get()), static_cast<NSView*>(subtitle.get())}) {
        box.add(part);
    }
    [[subtitle.get() cell] setLineBreakMode:NSLineBreakByTruncatingTail];
    [subtitle.get() sizeToFit];
    [title.get() setToolTip:nsString(row.title)];
    [subtitle.get() setToolTip:nsString(row.subtitle)];
    for (const auto& button : row.buttons) {
        buttons.push_back(std::make_unique<PaneButtonView>(button, press));
        box.add(buttons.back()->view());
    }
}

double ListSheetRowView::height() const
{
    double texts = [title.get() frame].size.height;
    if (![subtitle.get() isHidden]) {
        texts += [subtitle.get() frame].size.height;
    }
    double content = texts;
    for (const auto& button : buttons) {
        content = std::max(content, static_cast<double>([button->view() frame].size.height));
    }
    return content + 2.0 * paneMetrics::partSpacing;
}

void ListSheetRowView::setFrame(const NSRect& frame) const
{
    [box.view() setFrame:frame];
    const NSSize size = frame.size;
    [card.get() setFrame:NSMakeRect(0.0, 0.0, size.width, size.height)];
    double right = size.width - paneMetrics::cardMargin;
    for (const auto& button : buttons | std::views::reverse) {
        const NSSize each = [button->view() frame].size;
        right -= each.width;
        [button->view() setFrameOrigin:NSMakePoint(right, (size.height - each.height) / 2.0)];
        right -= paneMetrics::partSpacing;
    }
    const double width = std::max(0.0, right - paneMetrics::cardMargin);
    const double titleHeight = [title.get() frame].size.height;
    const double subtitleHeight = [subtitle.get() isHidden] ? 0.0 : [subtitle.get() frame].size.height;
    const double top = (size.height - titleHeight - subtitleHeight) / 2.0;
    [title.get() setFrame:NSMakeRect(paneMetrics::cardMargin, top, width, titleHeight)];
    [subtitle.get() setFrame:NSMakeRect(paneMetrics::cardMargin, top + titleHeight, width, subtitleHeight)];
}

} // namespace quorvel::macos
