#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

#include "platform/FormModel.h"

namespace quorvel {

class Settings;

// Rows of a form that are bound to one setting each: they show its value or, while it is absent, the default of the
// table of settings, and store what their control sends.

// A text that cannot be read as a colour shows as the default; the text stays as it is until a colour is picked.
struct ColorBinding {};

// What is sent is moved to the nearest step.
struct SliderBinding {
    double minimum = 0.0;
    double maximum = 1.0;
    double step = 1.0;
    int decimals = 0; // of the value beside it, halves rounded to even
};

struct StepperBinding {
    std::int64_t minimum = 0;
    std::int64_t maximum = 0;
};

struct ToggleBinding {};

struct PickerChoice {
    std::string_view title;
    std::string_view rawValue; // what is stored
};

struct PickerBinding {
    std::span<const PickerChoice> choices;
};

using SettingBinding = std::variant<ColorBinding, SliderBinding, StepperBinding, ToggleBinding, PickerBinding>;

struct SettingRow {
    std::string_view title;
    std::string_view key; // also the row's id
    SettingBinding binding;
    std::string_view help; // empty for none
};

struct SettingGroup {
    std::string_view title;
    std::span<const SettingRow> rows;
};

// The nine places of a label, in reading order.
std::span<const PickerChoice> labelPositionChoices();

FormGroup formGroup(const SettingGroup& group, const Settings& settings);

// Null where no row of the groups has that id.
const SettingRow* settingRow(std::span<const SettingGroup> groups, std::string_view id);

// A value of a type that the row's control does not send is a fatal error.
void storeSentValue(const SettingRow& row, const ControlValue& value, Settings& settings);

} // namespace quorvel
