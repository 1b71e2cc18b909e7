#include "platform/macos/preferences/FormRowView.h"

#include <algorithm>
#include <cmath>
#include <variant>

#include "platform/macos/preferences/PaneMetrics.h"

namespace quorvel::macos {

namespace {

double middle(double room, double height)
{
    return std::round((room - height) / 2.0);
}

} // namespace

FormRowView::FormRowView(FormModel& model, const FormRow& row)
    : title(createLabel(row.title)),
      control(createControlView(model, row)),
      help(createNote(row.help)),
      isCentered(std::holds_alternative<PreviewControl>(row.control)),
      rowId(row.id)
{
    for (NSView* const part : {static_cast<NSView*>(title.get()), control->view(), static_cast<NSView*>(help.get())}) {
        box.add(part);
    }
    show(row);
}

void FormRowView::show(const FormRow& row)
{
    showText(title, row.title);
    [title.get() sizeToFit];
    [title.get() setTextColor:row.isEnabled ? [NSColor labelColor] : [NSColor disabledControlTextColor]];
    control->show(row);
    showText(help, row.help);
}

double FormRowView::narrowest() const
{
    const double controlWidth = [control->view() frame].size.width;
    return [title.get() isHidden] ? controlWidth
                                  : std::ceil([title.get() frame].size.width) + paneMetrics::partSpacing + controlWidth;
}

double FormRowView::lineHeight() const
{
    const double parts = std::max([title.get() frame].size.height, [control->view() frame].size.height);
    return std::max(paneMetrics::rowHeight, parts + paneMetrics::partSpacing);
}

double FormRowView::height(double width) const
{
    const double helpHeight = heightOfNote(help, width);
    return lineHeight() + (helpHeight > 0.0 ? helpHeight + paneMetrics::helpSpacing : 0.0);
}

void FormRowView::setFrame(const NSRect& frame) const
{
    [box.view() setFrame:frame];
    layOut();
}

void FormRowView::layOut() const
{
    const double width = box.size().width;
    const double line = lineHeight();
    const NSSize size = [control->view() frame].size;
    const double right = width - size.width;
    double x = right;
    if ([title.get() isHidden]) {
        x = isCentered ? middle(width, size.width) : 0.0;
    }
    [control->view() setFrameOrigin:NSMakePoint(std::max(0.0, x), middle(line, size.height))];

    const double titleHeight = [title.get() frame].size.height;
    [title.get() setFrame:NSMakeRect(0.0, middle(line, titleHeight), std::max(0.0, right - paneMetrics::partSpacing),
                                     titleHeight)];
    [help.get() setFrame:NSMakeRect(0.0, line, width, heightOfNote(help, width))];
}

} // namespace quorvel::macos
