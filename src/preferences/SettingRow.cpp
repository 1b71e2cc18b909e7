#include "preferences/SettingRow.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>

#include <fmt/format.h>

#include "base/ColorCodec.h"
#include "base/FatalError.h"
#include "base/LabelPosition.h"
#include "preferences/ControlValues.h"
#include "settings/Settings.h"
#include "settings/SettingsTable.h"

namespace quorvel {

namespace {

// Builds the control of a row from what its setting holds.
struct ControlBuilder {
    std::string_view key;
    const Settings& settings;

    FormControl operator()(const ColorBinding&) const
    {
        const auto readable = colorFromHex(settings.boundString(key));
        const auto defaultText = std::get<std::string_view>(settingDefinition(key).paneDefault);
        const auto color = readable ? *readable : colorFromHex(defaultText).value_or(Color::clear());
        return ColorControl{.color = color, .text = hexStringFromColor(color), .stored = {settings.object(key)}};
    }

    FormControl operator()(const SliderBinding& slider) const
    {
        const double value = settings.boundReal(key);
        return SliderControl{
            .value = std::isnan(value) ? slider.minimum : std::clamp(value, slider.minimum, slider.maximum),
            .minimum = slider.minimum,
            .maximum = slider.maximum,
            .step = slider.step,
            .valueText = fmt::format("{:.{}f}", value, slider.decimals),
        };
    }

    FormControl operator()(const StepperBinding& stepper) const
    {
        const auto value = settings.boundInteger(key);
        return StepperControl{
            .value = std::clamp(value, stepper.minimum, stepper.maximum),
            .minimum = stepper.minimum,
            .maximum = stepper.maximum,
            .valueText = fmt::format("{}", value),
        };
    }

    FormControl operator()(const ToggleBinding&) const { return ToggleControl{settings.boundBoolean(key)}; }

    FormControl operator()(const PickerBinding& picker) const
    {
        PickerControl control;
        const auto stored = settings.boundString(key);
        for (const auto& choice : picker.choices) {
            if (choice.rawValue == stored) {
                control.selected = control.choices.size();
            }
            control.choices.emplace_back(choice.title);
        }
        return control;
    }
};

// Stores what the control of a row sent.
struct ValueStore {
    std::string_view key;
    const ControlValue& value;
    Settings& settings;

    void operator()(const ColorBinding&) const
    {
        if (const auto* const earlier = std::get_if<StoredValue>(&value)) {
            settings.restore(key, earlier->value);
        } else {
            settings.setString(key, hexStringFromColor(sentValue<Color>(key, value)));
        }
    }

    void operator()(const SliderBinding& slider) const
    {
        const double steps = std::round((sentValue<double>(key, value) - slider.minimum) / slider.step);
        settings.setReal(key, std::clamp(slider.minimum + steps * slider.step, slider.minimum, slider.maximum));
    }

    void operator()(const StepperBinding& stepper) const
    {
        settings.setInteger(key, std::clamp(sentValue<std::int64_t>(key, value), stepper.minimum, stepper.maximum));
    }

    void operator()(const ToggleBinding&) const { settings.setBoolean(key, sentValue<bool>(key, value)); }

    void operator()(const PickerBinding& picker) const
    {
        const auto index = static_cast<std::size_t>(sentValue<std::int64_t>(key, value));
        if (index >= picker.choices.size()) {
            fatalError(fmt::format("The picker \"{}\" has no choice {}", key, index));
        }
        settings.setString(key, std::string(picker.choices[index].rawValue));
    }
};

} // namespace

std::span<const PickerChoice> labelPositionChoices()
{
    static const auto choices = [] {
        std::array<PickerChoice, allLabelPositions.size()> result;
        std::ranges::transform(allLabelPositions, result.begin(), [](LabelPosition position) {
            return PickerChoice{title(position), rawValue(position)};
        });
        return result;
    }();
    return choices;
}

FormGroup formGroup(const SettingGroup& group, const Settings& settings)
{
    FormGroup result{.title = std::string(group.title), .rows = {}};
    for (const auto& row : group.rows) {
        result.rows.push_back({
            .id = std::string(row.key),
            .title = std::string(row.title),
            .control = std::visit(ControlBuilder{row.key, settings}, row.binding),
            .help = std::string(row.help),
            .accessibleName = fmt::format("{}, {}", group.title, row.title),
            .isEnabled = true,
        });
    }
    return result;
}

const SettingRow* settingRow(std::span<const SettingGroup> groups, std::string_view id)
{
    for (const auto& group : groups) {
        const auto found = std::ranges::find(group.rows, id, &SettingRow::key);
        if (found != group.rows.end()) {
            return &*found;
        }
    }
    return nullptr;
}

void storeSentValue(const SettingRow& row, const ControlValue& value, Settings& settings)
{
    std::visit(ValueStore{row.key, value, settings}, row.binding);
}

} // namespace quorvel
