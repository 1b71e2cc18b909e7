#pragma once

#include "platform/macos/Retained.h"
#include "platform/macos/preferences/ControlAction.h"
#include "platform/macos/preferences/controls/FormControlView.h"

namespace quorvel::macos {

// A switch.
class ToggleControlView final : public FormControlView {
public:
    ToggleControlView(FormModel& model, const FormRow& row);

    void show(const FormRow& row) override;
    NSView* view() const override { return toggle.get(); }
    std::vector<NSControl*> keyViews() const override { return {toggle.get()}; }

private:
    Retained<NSSwitch*> toggle;
    ControlAction action;
};

} // namespace quorvel::macos
