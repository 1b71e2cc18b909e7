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

// Makes the widget of each kind of control.
struct WidgetMaker {
    FormControlWidget* operator()(const ColorControl&) const { return new ColorWidget(pane, row, parent); }
    FormControlWidget* operator()(const SliderControl&) const { return new SliderWidget(pane, row, parent); }
    FormControlWidget* operator()(const StepperControl&) const { return new StepperWidget(pane, row, parent); }
    FormControlWidget* operator()(const ToggleControl&) const { return new ToggleWidget(pane, row, parent); }
    FormControlWidget* operator()(const PickerControl&) const { return new PickerWidget(pane, row, parent); }
    FormControlWidget* operator()(const ButtonControl&) const { return new ButtonWidget(pane, row, parent); }
    FormControlWidget* operator()(const ShortcutControl&) const { return new ShortcutWidget(pane, row, parent); }
    FormControlWidget* operator()(const StatusControl&) const { return new StatusWidget(pane, row, parent); }
    FormControlWidget* operator()(const PreviewControl&) const { return new PreviewWidget(pane, row, parent); }

    const ControlPane& pane;
    const FormRow& row;
    QWidget* parent;
};

} // namespace

FormControlWidget* createControlWidget(const ControlPane& pane, const FormRow& row, QWidget* parent)
{
    auto* const widget = std::visit(WidgetMaker{pane, row, parent}, row.control);
    widget->showRow(row);
    return widget;
}

} // namespace quorvel::x11
