#pragma once

#include "platform/macos/Retained.h"
#include "platform/macos/preferences/ControlAction.h"
#include "platform/macos/preferences/PaneLabels.h"
#include "platform/macos/preferences/PartsLine.h"
#include "platform/macos/preferences/controls/FormControlView.h"

namespace quorvel::macos {

// A slider in a column of one width, with its value beside it.
class SliderControlView final : public FormControlView {
public:
    SliderControlView(FormModel& model, const FormRow& row);

    void show(const FormRow& row) override;
    NSView* view() const override { return line.view(); }
    std::vector<NSControl*> keyViews() const override { return {slider.get()}; }

private:
    Retained<NSSlider*> slider;
    Label valueText;
    PartsLine line;
    ControlAction action;
};

} // namespace quorvel::macos
