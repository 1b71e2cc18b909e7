#pragma once

#include "platform/macos/Retained.h"
#include "platform/macos/preferences/ControlAction.h"
#include "platform/macos/preferences/PaneLabels.h"
#include "platform/macos/preferences/PartsLine.h"
#include "platform/macos/preferences/controls/FormControlView.h"

namespace quorvel::macos {

// A number with arrows.
class StepperControlView final : public FormControlView {
public:
    StepperControlView(FormModel& model, const FormRow& row);

    void show(const FormRow& row) override;
    NSView* view() const override { return line.view(); }
    std::vector<NSControl*> keyViews() const override { return {stepper.get()}; }

private:
    Label valueText;
    Retained<NSStepper*> stepper;
    PartsLine line;
    ControlAction action;
};

} // namespace quorvel::macos
