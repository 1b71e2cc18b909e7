#include "platform/macos/preferences/controls/ShortcutControlView.h"

namespace quorvel::macos {

ShortcutControlView::ShortcutControlView(FormModel& model, const FormRow& row)
    : FormControlView(model, row),
      record(std::get<ShortcutControl>(row.control).record, [this](const std::string& id) { press(id); }),
      clear(std::get<ShortcutControl>(row.control).clear, [this](const std::string& id) { press(id); }),
      line({keyCap.view(), record.view(), clear.view()})
{}

void ShortcutControlView::show(const FormRow& row)
{
    const auto& control = std::get<ShortcutControl>(row.control);
    keyCap.show(control, row.accessibleName);
    record.show(control.record);
    clear.show(control.clear);
    for (NSButton* const button : {record.view(), clear.view()}) {
        if (!row.isEnabled) {
            [button setEnabled:NO];
        }
    }
    line.arrange();
}

} // namespace quorvel::macos
