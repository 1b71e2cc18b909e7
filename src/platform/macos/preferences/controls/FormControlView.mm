#include "platform/macos/preferences/controls/FormControlView.h"

#include <variant>

#include "platform/macos/preferences/controls/ButtonControlView.h"
#include "platform/macos/preferences/controls/ColorControlView.h"
#include "platform/macos/preferences/controls/PickerControlView.h"
#include "platform/macos/preferences/controls/PreviewControlView.h"
#include "platform/macos/preferences/controls/ShortcutControlView.h"
#include "platform/macos/preferences/controls/SliderControlView.h"
#include "platform/macos/preferences/controls/StatusControlView.h"
#include "platform/macos/preferences/controls/StepperControlView.h"
#include "platform/macos/preferences/controls/ToggleControlView.h"

namespace quorvel::macos {

namespace {

// Makes the view of each kind of control.
struct ViewMaker {
    template <class View>
    std::unique_ptr<FormControlView> make() const
    {
        return std::make_unique<View>(model, row);
    }

    std::unique_ptr<FormControlView> operator()(const ColorControl&) const { return make<ColorControlView>(); }
    std::unique_ptr<FormControlView> operator()(const SliderControl&) const { return make<SliderControlView>(); }
    std::unique_ptr<FormControlView> operator()(const StepperControl&) const { return make<StepperControlView>(); }
    std::unique_ptr<FormControlView> operator()(const ToggleControl&) const { return make<ToggleControlView>(); }
    std::unique_ptr<FormControlView> operator()(const PickerControl&) const { return make<PickerControlView>(); }
    std::unique_ptr<FormControlView> operator()(const ButtonControl&) const { return make<ButtonControlView>(); }
    std::unique_ptr<FormControlView> operator()(const ShortcutControl&) const { return make<ShortcutControlView>(); }
    std::unique_ptr<FormControlView> operator()(const StatusControl&) const { return make<StatusControlView>(); }
    std::unique_ptr<FormControlView> operator()(const PreviewControl&) const { return make<PreviewControlView>(); }

    FormModel& model;
    const FormRow& row;
};

} // namespace

std::unique_ptr<FormControlView> createControlView(FormModel& model, const FormRow& row)
{
    auto view = std::visit(ViewMaker{model, row}, row.control);
    view->show(row);
    return view;
}

} // namespace quorvel::macos
