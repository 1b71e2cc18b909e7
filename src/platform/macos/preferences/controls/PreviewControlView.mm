#include "platform/macos/preferences/controls/PreviewControlView.h"

#include "platform/macos/Strings.h"

namespace quorvel::macos {

PreviewControlView::PreviewControlView(FormModel& model, const FormRow& row)
    : FormControlView(model, row),
      picture(Retained<QuorvelDrawListView*>::adopt([[QuorvelDrawListView alloc] initWithFrame:NSZeroRect]))
{}

void PreviewControlView::show(const FormRow& row)
{
    const auto& control = std::get<PreviewControl>(row.control);
    [picture.get() setContent:control.content];
    [picture.get() setFrameSize:NSMakeSize(control.size.width, control.size.height)];
    [picture.get() setAccessibilityElement:YES];
    [picture.get() setAccessibilityRole:NSAccessibilityImageRole];
    [picture.get() setAccessibilityLabel:nsString(row.accessibleName)];
    [picture.get() setAccessibilityHelp:nsString(control.description)];
}

} // namespace quorvel::macos
