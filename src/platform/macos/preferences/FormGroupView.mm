#include "platform/macos/preferences/FormGroupView.h"

#include <algorithm>

#include "platform/FormShape.h"
#include "platform/macos/Strings.h"
#include "platform/macos/preferences/Grounds.h"
#include "platform/macos/preferences/PaneMetrics.h"

namespace quorvel::macos {

FormGroupView::FormGroupView(FormModel& model, const FormGroup& group)
    : title(createTitle(group.title)), card(createCard()), hasHead(hasPreview(group))
{
    [title.get() setHidden:group.title.empty()];
    for (NSView* const part : {static_cast<NSView*>(title.get()), static_cast<NSView*>(card.get()), inner.view()}) {
        box.add(part);
    }
    [inner.view() setAccessibilityElement:YES];
    [inner.view() setAccessibilityRole:NSAccessibilityGroupRole];
    [inner.view() setAccessibilityLabel:nsString(group.title)];
    bool isFirst = true;
    for (const auto& row : group.rows) {
        rows.push_back(std::make_unique<FormRowView>(model, row));
        isPreview.push_back(std::holds_alternative<PreviewControl>(row.control));
        if (isInHead(rows.size() - 1)) {
            box.add(rows.back()->view());
            continue;
        }
        if (!std::exchange(isFirst, false)) {
            separators.push_back(createSeparator());
            inner.add(separators.back().get());
        }
        inner.add(rows.back()->view());
    }
}

void FormGroupView::show(const FormGroup& group)
{
    for (std::size_t index = 0; index < rows.size(); ++index) {
        rows[index]->show(group.rows[index]);
    }
}

double FormGroupView::narrowest() const
{
    double widest = 0.0;
    for (const auto& row : rows) {
        widest = std::max(widest, row->narrowest());
    }
    return widest + 2.0 * paneMetrics::cardMargin;
}

double FormGroupView::headHeight() const
{
    double height = [title.get() isHidden] ? 0.0 : [title.get() frame].size.height;
    for (std::size_t index = 0; index < rows.size(); ++index) {
        if (isInHead(index)) {
            height = std::max(height, rows[index]->height(rows[index]->narrowest()));
        }
    }
    return height > 0.0 ? height + paneMetrics::titleSpacing : 0.0;
}

double FormGroupView::height(double width) const
{
    double height = headHeight();
    for (std::size_t index = 0; index < rows.size(); ++index) {
        if (!isInHead(index)) {
            height += rows[index]->height(width - 2.0 * paneMetrics::cardMargin);
        }
    }
    return height;
}

void FormGroupView::setFrame(const NSRect& frame) const
{
    [box.view() setFrame:frame];
    layOut();
}

void FormGroupView::layOut() const
{
    const NSSize size = box.size();
    layOutHead();
    const double top = headHeight();
    const NSRect ground = NSMakeRect(0.0, top, size.width, std::max(0.0, size.height - top));
    [card.get() setFrame:ground];
    [inner.view() setFrame:ground];

    const double width = size.width - 2.0 * paneMetrics::cardMargin;
    double y = 0.0;
    auto separator = separators.begin();
    for (std::size_t index = 0; index < rows.size(); ++index) {
        if (isInHead(index)) {
            continue;
        }
        if (y > 0.0) {
            [(separator++)->get() setFrame:NSMakeRect(paneMetrics::cardMargin, y, width, 1.0)];
        }
        const double height = rows[index]->height(width);
        rows[index]->setFrame(NSMakeRect(paneMetrics::cardMargin, y, width, height));
        y += height;
    }
}

void FormGroupView::layOutHead() const
{
    double right = box.size().width;
    const double room = headHeight() - paneMetrics::titleSpacing;
    for (std::size_t index = rows.size(); index-- > 0;) {
        if (isInHead(index)) {
            const double width = rows[index]->narrowest();
            right -= width;
            rows[index]->setFrame(NSMakeRect(right, 0.0, width, room));
            right -= paneMetrics::groupSpacing;
        }
    }
    const double titleHeight = [title.get() frame].size.height;
    [title.get() setFrame:NSMakeRect(0.0, std::max(0.0, room - titleHeight), std::max(0.0, right), titleHeight)];
}

} // namespace quorvel::macos
