#include "platform/macos/preferences/controls/StepperControlView.h"

#include <cmath>
#include <cstdint>

#include "platform/macos/Strings.h"

namespace quorvel::macos {

namespace {

constexpr CGFloat valueWidth = 40.0;

} // namespace

StepperControlView::StepperControlView(FormModel& model, const FormRow& row)
    : FormControlView(model, row),
      valueText(createLabel("0")),
      stepper(Retained<NSStepper*>::adopt([[NSStepper alloc] initWithFrame:NSZeroRect])),
      line({valueText.get(), stepper.get()}),
      action(stepper.get(), [this] { send(static_cast<std::int64_t>(std::llround([stepper.get() doubleValue]))); })
{
    [stepper.get() setIncrement:1.0];
    [stepper.get() setValueWraps:NO];
    [stepper.get() sizeToFit];
    [valueText.get() setFont:[NSFont monospacedDigitSystemFontOfSize:[NSFont systemFontSize]
                                                              weight:NSFontWeightRegular]];
    [valueText.get() setAlignment:NSTextAlignmentRight];
    [valueText.get() setFrameSize:NSMakeSize(valueWidth, [valueText.get() frame].size.height)];
    line.arrange();
}

void StepperControlView::show(const FormRow& row)
{
    const auto& control = std::get<StepperControl>(row.control);
    NSStepper* const view = stepper.get();
    [view setMinValue:static_cast<double>(control.minimum)];
    [view setMaxValue:static_cast<double>(control.maximum)];
    [view setDoubleValue:static_cast<double>(control.value)];
    [view setEnabled:row.isEnabled];
    [view setAccessibilityLabel:nsString(row.accessibleName)];
    [view setAccessibilityValueDescription:nsString(control.valueText)];
    [valueText.get() setStringValue:nsString(control.valueText)];
}

} // namespace quorvel::macos
