#include "platform/macos/preferences/controls/PickerControlView.h"

#include <cstdint>

#include "platform/macos/Strings.h"

namespace quorvel::macos {

PickerControlView::PickerControlView(FormModel& model, const FormRow& row)
    : FormControlView(model, row),
      popUp(Retained<NSPopUpButton*>::adopt([[NSPopUpButton alloc] initWithFrame:NSZeroRect pullsDown:NO])),
      action(popUp.get(), [this] { sendChoice(); })
{}

void PickerControlView::show(const FormRow& row)
{
    const auto& picker = std::get<PickerControl>(row.control);
    setChoices(picker.choices);
    [popUp.get() selectItemAtIndex:picker.selected ? static_cast<NSInteger>(*picker.selected) : -1];
    [popUp.get() setEnabled:row.isEnabled];
    [popUp.get() setAccessibilityLabel:nsString(row.accessibleName)];
}

void PickerControlView::setChoices(const std::vector<std::string>& choices)
{
    if (choices == shownChoices) {
        return;
    }
    shownChoices = choices;
    [[popUp.get() menu] removeAllItems];
    for (const auto& choice : choices) {
        // The button itself would leave out the first of two equal titles.
        [[popUp.get() menu] addItemWithTitle:nsString(choice) action:nullptr keyEquivalent:@""];
    }
    [popUp.get() sizeToFit];
}

void PickerControlView::sendChoice() const
{
    const NSInteger index = [popUp.get() indexOfSelectedItem];
    if (index >= 0) {
        send(static_cast<std::int64_t>(index));
    }
}

} // namespace quorvel::macos
