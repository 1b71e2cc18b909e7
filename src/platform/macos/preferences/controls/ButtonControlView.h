#pragma once

#include "platform/macos/preferences/PaneButtonView.h"
#include "platform/macos/preferences/controls/FormControlView.h"

namespace quorvel::macos {

// A push button.
class ButtonControlView final : public FormControlView {
public:
    ButtonControlView(FormModel& model, const FormRow& row);

    void show(const FormRow& row) override;
    NSView* view() const override { return button.view(); }
    std::vector<NSControl*> keyViews() const override { return {button.view()}; }

private:
    PaneButtonView button;
};

} // namespace quorvel::macos
