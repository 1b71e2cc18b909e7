#pragma once

#include "platform/macos/Retained.h"
#include "platform/macos/preferences/ColorWell.h"
#include "platform/macos/preferences/ControlAction.h"
#include "platform/macos/preferences/controls/FormControlView.h"

namespace quorvel::macos {

// A colour well. The colour panel that it opens has alpha, and its colour holds while it is being chosen.
class ColorControlView final : public FormControlView {
public:
    ColorControlView(FormModel& model, const FormRow& row);

    void show(const FormRow& row) override;
    NSView* view() const override { return well.get(); }
    std::vector<NSControl*> keyViews() const override { return {well.get()}; }

private:
    Retained<QuorvelColorWell*> well;
    ControlAction action;
};

} // namespace quorvel::macos
