#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <fmt/format.h>

#include "platform/Form.h"

namespace quorvel {

inline const FormRow& rowOf(const Form& form, std::string_view id)
{
    for (const auto& group : form.groups) {
        for (const auto& row : group.rows) {
            if (row.id == id) {
                return row;
            }
        }
    }
    throw std::out_of_range("There is no row " + std::string(id));
}

template <class Control>
Control controlOf(const Form& form, std::string_view id)
{
    return std::get<Control>(rowOf(form, id).control);
}

// One word or a few for a control: its kind and what limits it.
struct ControlOutline {
    std::string operator()(const ColorControl&) const { return "color"; }
    std::string operator()(const SliderControl& slider) const
    {
        return fmt::format("slider {}-{} step {}", slider.minimum, slider.maximum, slider.step);
    }
    std::string operator()(const StepperControl& stepper) const
    {
        return fmt::format("stepper {}-{}", stepper.minimum, stepper.maximum);
    }
    std::string operator()(const ToggleControl&) const { return "toggle"; }
    std::string operator()(const PickerControl& picker) const
    {
        return fmt::format("picker of {}", picker.choices.size());
    }
    std::string operator()(const ButtonControl& button) const { return "button " + button.button.title; }
    std::string operator()(const ShortcutControl&) const { return "shortcut"; }
    std::string operator()(const StatusControl& status) const { return "status, button " + status.button.title; }
    std::string operator()(const PreviewControl&) const { return "preview"; }
};

// The groups and rows of a form in order: "# Group", "id: Title, control".
inline std::vector<std::string> outline(const Form& form)
{
    std::vector<std::string> lines;
    for (const auto& group : form.groups) {
        lines.push_back("# " + group.title);
        for (const auto& row : group.rows) {
            lines.push_back(fmt::format("{}: {}, {}", row.id, row.title, std::visit(ControlOutline(), row.control)));
        }
    }
    return lines;
}

inline std::vector<std::string> titlesOf(const std::vector<PaneButton>& buttons)
{
    std::vector<std::string> titles;
    titles.reserve(buttons.size());
    for (const auto& button : buttons) {
        titles.push_back(button.title);
    }
    return titles;
}

// The button of that title.
inline const PaneButton& buttonTitled(const std::vector<PaneButton>& buttons, std::string_view title)
{
    for (const auto& button : buttons) {
        if (button.title == title) {
            return button;
        }
    }
    throw std::out_of_range("There is no button " + std::string(title));
}

} // namespace quorvel
