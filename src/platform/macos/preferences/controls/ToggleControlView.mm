#include "platform/macos/preferences/controls/ToggleControlView.h"

#include "platform/macos/Strings.h"

namespace quorvel::macos {

ToggleControlView::ToggleControlView(FormModel& model, const FormRow& row)
    : FormControlView(model, row),
      toggle(Retained<NSSwitch*>::adopt([[NSSwitch alloc] initWithFrame:NSZeroRect])),
      action(toggle.get(), [this] { send([toggle.get() state] == NSControlStateValueOn); })
{
    [toggle.get() sizeToFit];
}

void ToggleControlView::show(const FormRow& row)
{
    const bool isOn = std::get<ToggleControl>(row.control).isOn;
    [toggle.get() setState:isOn ? NSControlStateValueOn : NSControlStateValueOff];
    [toggle.get() setEnabled:row.isEnabled];
    [toggle.get() setAccessibilityLabel:nsString(row.accessibleName)];
}

} // namespace quorvel::macos
