#include "platform/macos/preferences/controls/ButtonControlView.h"

namespace quorvel::macos {

ButtonControlView::ButtonControlView(FormModel& model, const FormRow& row)
    : FormControlView(model, row),
      button(std::get<ButtonControl>(row.control).button, [this](const std::string& id) { press(id); })
{}

void ButtonControlView::show(const FormRow& row)
{
    button.show(std::get<ButtonControl>(row.control).button);
    if (!row.isEnabled) {
        [button.view() setEnabled:NO];
    }
}

} // namespace quorvel::macos
