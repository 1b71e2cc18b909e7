#include "platform/x11/qt/controls/FormControlWidget.h"

#include <variant>

#include "platform/x11/qt/controls/ButtonWidget.h"
#include "platform/x11/qt/controls/ColorWidget.h"
#include "platform/x11/qt/controls/PickerWidget.h"
#include "platform/x11/qt/controls/PreviewWidget.h"
#include "platform/x11/qt/controls/ShortcutWidget.h"
#include "platform/x11/qt/controls/SliderWidget.h"
#include "platform/x11/qt/controls/StatusWidget.h"
#include "platform/x11/qt/controls/StepperWidget.h"
#include "platform/x11/qt/controls/ToggleWidget.h"

namespace quorvel::x11 {

namespace {

template <class Control>
struct WidgetOf;
template <>
struct WidgetOf<ColorControl> {
    using Type = ColorWidget;
};
template <>
struct WidgetOf<SliderControl> {
    using Type = SliderWidget;
};
template <>
struct WidgetOf<StepperControl> {
    using Type = StepperWidget;
};
template <>
struct WidgetOf<ToggleControl> {
    using Type = ToggleWidget;
};
template <>
struct WidgetOf<PickerControl> {
    using Type = PickerWidget;
};
template <>
struct WidgetOf<ButtonControl> {
    using Type = ButtonWidget;
};
template <>
struct WidgetOf<ShortcutControl> {
    using Type = ShortcutWidget;
};
template <>
struct WidgetOf<StatusControl> {
    using Type = StatusWidget;
};
template <>
struct WidgetOf<PreviewControl> {
    using Type = PreviewWidget;
};

} // namespace

FormControlWidget* createControlWidget(const ControlPane& pane, const FormRow& row, QWidget* parent)
{
    auto* const widget = std::visit(
        [&]<class Control>(const Control&) -> FormControlWidget* {
            return new typename WidgetOf<Control>::Type(pane, row, parent);
        },
        row.control);
    widget->showRow(row);
    return widget;
}

} // namespace quorvel::x11
