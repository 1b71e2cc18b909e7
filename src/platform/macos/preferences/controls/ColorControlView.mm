#include "platform/macos/preferences/controls/ColorControlView.h"

#include <cmath>

#include "platform/macos/Colors.h"
#include "platform/macos/Strings.h"

namespace quorvel::macos {

namespace {

constexpr NSRect wellFrame = {{0.0, 0.0}, {46.0, 26.0}};

bool isSameInBytes(const Color& one, const std::optional<Color>& shown)
{
    const auto other = shown.value_or(Color::clear());
    const auto isSame = [](double a, double b) { return std::lround(a * 255.0) == std::lround(b * 255.0); };
    return isSame(one.red, other.red) && isSame(one.green, other.green) && isSame(one.blue, other.blue) &&
           isSame(one.alpha, other.alpha);
}

} // namespace

ColorControlView::ColorControlView(FormModel& model, const FormRow& row)
    : FormControlView(model, row),
      well(Retained<QuorvelColorWell*>::adopt([[QuorvelColorWell alloc] initWithFrame:wellFrame])),
      action(well.get(), [this] {
          if (const auto picked = deviceColor([well.get() color])) {
              send(*picked);
          }
      })
{
    [well.get() setContinuous:YES];
    [well.get() setColor:nsColor(std::get<ColorControl>(row.control).color)];
}

// A colour that comes back from the model, rounded, would move the marks in the colour panel under the pointer.
void ColorControlView::show(const FormRow& row)
{
    const auto& control = std::get<ColorControl>(row.control);
    if (!isSameInBytes(control.color, deviceColor([well.get() color]))) {
        [well.get() setColor:nsColor(control.color)];
    }
    [well.get() setToolTip:nsString(control.text)];
    [well.get() setAccessibilityValueDescription:nsString(control.text)];
    [well.get() setEnabled:row.isEnabled];
    [well.get() setAccessibilityLabel:nsString(row.accessibleName)];
}

} // namespace quorvel::macos
