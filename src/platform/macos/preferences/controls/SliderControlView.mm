#include "platform/macos/preferences/controls/SliderControlView.h"

#include "platform/macos/Strings.h"

namespace quorvel::macos {

namespace {

constexpr NSRect sliderFrame = {{0.0, 0.0}, {170.0, 24.0}};
constexpr CGFloat valueWidth = 40.0;

} // namespace

SliderControlView::SliderControlView(FormModel& model, const FormRow& row)
    : FormControlView(model, row),
      slider(Retained<NSSlider*>::adopt([[NSSlider alloc] initWithFrame:sliderFrame])),
      valueText(createLabel("0")),
      line({slider.get(), valueText.get()}),
      action(slider.get(), [this] { send([slider.get() doubleValue]); })
{
    [slider.get() setContinuous:YES];
    [valueText.get() setFont:[NSFont monospacedDigitSystemFontOfSize:[NSFont systemFontSize]
                                                              weight:NSFontWeightRegular]];
    [valueText.get() setAlignment:NSTextAlignmentRight];
    [valueText.get() setFrameSize:NSMakeSize(valueWidth, [valueText.get() frame].size.height)];
    line.arrange();
}

void SliderControlView::show(const FormRow& row)
{
    const auto& control = std::get<SliderControl>(row.control);
    NSSlider* const view = slider.get();
    [view setMinValue:control.minimum];
    [view setMaxValue:control.maximum];
    [view setAltIncrementValue:control.step];
    [view setDoubleValue:control.value];
    [view setEnabled:row.isEnabled];
    [view setAccessibilityLabel:nsString(row.accessibleName)];
    [view setAccessibilityValueDescription:nsString(control.valueText)];
    [valueText.get() setStringValue:nsString(control.valueText)];
}

} // namespace quorvel::macos
